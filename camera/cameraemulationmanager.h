#pragma once

#include "cameradiscovery.h"
#include "camerapipeline.h"
#include "streammeter.h"
#include "videofilepipeline.h"

#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QtQmlIntegration>

class QUrl;

/*!
 * Feeds the emulator's camera with pictures of a host camera or of a video file, as RTP/JPEG over
 * UDP (RFC 2435).
 *
 * Follows the cameras that are plugged in and out, and keeps what the user selects of them. A
 * selection reaches the stream only with setCameraStreamSettings(). Setters notify also when
 * nothing changed. Failures within GStreamer are not reported: the stream then sends nothing, which
 * streamFramesPerSecond() tells.
 *
 * The main loop must dispatch GLib's default context, as Qt's does on Linux, for changes of the
 * cameras to be noticed.
 */
class CameraEmulationManager : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("cameraEmulationManager is the only instance")
    Q_PROPERTY(bool streamRunning READ streamRunning NOTIFY streamRunningChanged)
    Q_PROPERTY(bool videoStreamRunning READ videoStreamRunning NOTIFY streamRunningChanged)
    Q_PROPERTY(int streamFramesPerSecond READ streamFramesPerSecond NOTIFY streamMeasured)
    Q_PROPERTY(QSize streamSize READ streamSize NOTIFY streamMeasured)
    Q_PROPERTY(int maximumSideLength MEMBER maximumSideLength CONSTANT)
    Q_PROPERTY(QStringList framerates READ framerates NOTIFY frameratesChanged)
    Q_PROPERTY(QVariantList resolutions READ resolutions NOTIFY resolutionsChanged)
    Q_PROPERTY(QStringList cameras READ cameras NOTIFY camerasChanged)
    Q_PROPERTY(QString framerate READ framerate WRITE setFramerate NOTIFY framerateChanged)
    Q_PROPERTY(int width READ width WRITE setWidth NOTIFY widthChanged)
    Q_PROPERTY(int height READ height WRITE setHeight NOTIFY heightChanged)
    Q_PROPERTY(int resolutionIndex READ resolutionIndex WRITE setResolutionIndex
                   NOTIFY resolutionIndexChanged)
    Q_PROPERTY(QString cameraName READ cameraName WRITE setCameraName NOTIFY cameraNameChanged)

public:
    /// Both ends of the forwarded UDP port.
    static constexpr int udpPort = StreamPipeline::udpPort;
    static constexpr const char *localhost = StreamPipeline::host;
    /// Name of the SDK's port forwarding rule for it.
    static const QString portForwardingRule;
    /// The largest width and height, in pixels, that RTP/JPEG has room for (RFC 2435, 3.1.5).
    static constexpr int maximumSideLength = StreamPipeline::maximumSideLength;

    explicit CameraEmulationManager(QObject *parent = nullptr);

    /// True from a start of either stream, whether GStreamer can play it or not, until it ends.
    [[nodiscard]] bool streamRunning() const;
    /// True while the stream that runs is one of a video file.
    [[nodiscard]] bool videoStreamRunning() const;

    /// What leaves, see StreamMeter.
    [[nodiscard]] int streamFramesPerSecond() const;
    [[nodiscard]] QSize streamSize() const;

    /// Names of the host's cameras in ascending order; those of one name share an entry.
    [[nodiscard]] QStringList cameras() const;
    /// Frame sizes of the selected camera, see availableResolutions().
    [[nodiscard]] QVariantList resolutions() const;
    /// Frame rates of the selected camera at the selected size, largest first.
    [[nodiscard]] QStringList framerates() const;

    /// Numerator and denominator, "30/1"; empty when the camera may choose.
    [[nodiscard]] QString framerate() const;
    /// A text without "/" selects no frame rate.
    void setFramerate(const QString &framerate);

    /// In pixels; negative when the camera may choose.
    [[nodiscard]] int width() const;
    void setWidth(int width);
    [[nodiscard]] int height() const;
    void setHeight(int height);

    [[nodiscard]] int resolutionIndex() const;
    /*!
     * Selects an entry of resolutions() with its width and height, and its largest frame rate
     * unless it has the selected one. A size or rate that there is not leaves what was selected.
     */
    void setResolutionIndex(int index);

    [[nodiscard]] QString cameraName() const;
    /// Selects a camera and the first of its sizes.
    void setCameraName(const QString &name);

    /// Called whenever the window is about to be shown with the emulator at hand. Lists the
    /// cameras, selects the first unless the selected one is there, and takes over the selection.
    void setupCameraStreamPipeline();

    /// Looks for cameras afresh and selects the first. Ends a stream of a camera; one of a video
    /// file goes on, so that no camera is switched on unasked.
    Q_INVOKABLE void updateCamerasList();

    /// Ends any stream, then starts one of the camera that was taken over last; if there is none
    /// any more, or its size cannot be streamed, of the selected one.
    Q_INVOKABLE void startCameraStream();
    /// Ends a stream of a camera.
    Q_INVOKABLE void stopCameraStream();
    /*!
     * Ends any stream, then plays a local file over and over if it holds VP8 or VP9, which takes up
     * to two seconds to find out. No path only ends the streams.
     */
    Q_INVOKABLE void startVideoStream(const QString &filePath);
    /// Ends a stream of a video file.
    Q_INVOKABLE void stopVideoStream();
    /// Ends any stream. Nothing is sent from then on.
    Q_INVOKABLE void stopStreams();
    /// Takes over the selected camera, size and rate. A running stream, also one of a video file,
    /// becomes one of the camera. A size that cannot be streamed changes nothing.
    Q_INVOKABLE void setCameraStreamSettings();

    /// The path of a local file's URL. Empty for other URLs, and where escapes are not UTF-8: such
    /// a path cannot be told.
    Q_INVOKABLE [[nodiscard]] static QString localPath(const QUrl &url);

public Q_SLOTS:
    /// Plays the video file from its start, unless it was stopped. A file without pictures, which
    /// comes to its end at once, waits a little.
    void restartVideoStream();

Q_SIGNALS:
    void streamRunningChanged();
    void streamMeasured();
    void frameratesChanged();
    void resolutionsChanged();
    void camerasChanged();
    void framerateChanged();
    void widthChanged();
    void heightChanged();
    void resolutionIndexChanged();
    void cameraNameChanged();
    /// The video file came to its end. Emitted on a thread of GStreamer's.
    void videoStreamStopped();
    void cameraStreamSettingsApplied();
    /// The verdict on a file that is to be played. The name is empty if the file tells none.
    void videoFileCodecChecked(bool success, const QString &codecName);
    /// A stream was not started, or its settings not taken over: its pictures are too large, see
    /// maximumSideLength.
    void streamSizeRefused(QSize size);

private:
    [[nodiscard]] bool cameraStreamRunning() const;
    void handlePlugged();
    void handleUnplugged(const QString &name);
    void handleRemoved(const QString &name);
    void selectFirstCamera();
    void applySelection(bool restart);
    void play(StreamPipeline *pipeline);
    void stopPlaying();
    bool checkVideoFile(const QString &path);

    CameraDiscovery m_discovery;
    QString m_framerate;
    int m_width = -1;
    int m_height = -1;
    int m_resolutionIndex = 0;
    QString m_cameraName;
    VideoFilePipeline m_videoPipeline;
    CameraPipeline m_cameraPipeline;
    QString m_appliedCameraName; // the camera and size that m_cameraPipeline has
    QSize m_appliedSize;
    StreamPipeline *m_playing = nullptr; // streamRunning() and videoStreamRunning() derive from it
    StreamMeter m_meter;
};
