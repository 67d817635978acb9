#pragma once

#include <QObject>
#include <QString>

/*!
 * Feeds the emulator's camera with pictures as RTP/JPEG over UDP (RFC 2435).
 *
 * No source of pictures exists yet, so that no stream ever runs.
 */
class CameraEmulationManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool streamRunning READ streamRunning NOTIFY streamRunningChanged)

public:
    /// Both ends of the forwarded UDP port.
    static constexpr unsigned short udpPort = 34343;
    /// Name of the SDK's port forwarding rule for it.
    static const QString portForwardingRule;

    using QObject::QObject;

    [[nodiscard]] bool streamRunning() const;

    /// Called whenever the window is about to be shown with the emulator at hand.
    void setupCameraStreamPipeline();

    Q_INVOKABLE void stopVideoStream();
    Q_INVOKABLE void stopCameraStream();

Q_SIGNALS:
    void streamRunningChanged();
};
