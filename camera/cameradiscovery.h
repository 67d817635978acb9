#pragma once

#include "cameracapabilities.h"
#include "gstreferences.h"

#include <QMap>
#include <QObject>
#include <QString>
#include <QVariantList>

/*!
 * Finds the host's cameras and notices when a camera is plugged in or out.
 *
 * It notices changes after the first readCameras(), and only while the main loop dispatches GLib's
 * default context, as Qt's event loop does on Linux.
 */
class CameraDiscovery : public QObject
{
    Q_OBJECT

public:
    struct Camera
    {
        QVariantList resolutions; ///< see availableResolutions()
        CameraSource source;
    };

    explicit CameraDiscovery(QObject *parent = nullptr);
    ~CameraDiscovery() override;

    /// The known cameras by name. Cameras with the same name share one entry.
    [[nodiscard]] const QMap<QString, Camera> &cameras() const { return m_cameras; }

    /// Adds each camera of the host to cameras(), or replaces its entry, and emits cameraRead().
    /// The first call starts to watch.
    void readCameras();
    /// Forgets all cameras, starts a new GStreamer monitor and reads the cameras.
    void restart();

Q_SIGNALS:
    /// cameras() has a new entry, or an entry was replaced.
    void cameraRead();
    /// A camera with a new name was plugged in. Emitted after its cameraRead().
    void cameraPlugged();
    /// A known camera was unplugged. cameras() has it until cameraRemoved().
    void cameraUnplugged(const QString &name);
    void cameraRemoved(const QString &name);

private:
    void startMonitor();
    void stopMonitor();
    void readCamera(GstDevice *device);
    static int onDeviceListChanged(GstBus *bus, GstMessage *message, void *discovery);

    // Null before readCameras(): GStreamer and its monitor take a tenth of the plugin's start, and
    // nobody sees the cameras before the window is opened.
    ObjectReference<GstDeviceMonitor> m_monitor;
    QMap<QString, Camera> m_cameras;
};
