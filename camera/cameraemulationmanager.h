#pragma once

#include "cameradiscovery.h"
#include "camerapipeline.h"
#include "streammeter.h"
#include "streampreview.h"
#include "videofilepipeline.h"

#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QtQmlIntegration>

#include <memory>

class QUrl;

/*!
 * Feeds the emulator's camera with pictures of a host camera or of a video file, as RTP/JPEG over
 * UDP (RFC 2435).
 *
 * Keeps the user's choice of camera, size and frame rate, and knows which stream runs. A choice
 * reaches the stream only with setCameraStreamSettings(). Setters notify even when nothing changed.
 * GStreamer's errors are not reported: the stream then sends nothing, and streamFramesPerSecond()
 * shows it.
 *
 * See CameraDiscovery for the condition under which plugged and unplugged cameras are noticed.
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
    Q_PROPERTY(StreamPreview *preview READ preview CONSTANT)
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
    /// The UDP port that streams are sent to. The emulator's end has the same number.
    static constexpr int udpPort = StreamPipeline::udpPort;
    /// The address that streams are sent to.
    static constexpr const char *localhost = StreamPipeline::host;
    /// Name of the SDK's port forwarding rule for udpPort.
    static const QString portForwardingRule;
    /// The largest width and height, in pixels, that can be streamed.
    static constexpr int maximumSideLength = StreamPipeline::maximumSideLength;

    explicit CameraEmulationManager(QObject *parent = nullptr);

    /// True from the start of a stream until it is stopped, whether or not GStreamer can play it.
    [[nodiscard]] bool streamRunning() const { return m_playing; }
    /// True while a video file is streamed.
    [[nodiscard]] bool videoStreamRunning() const { return isPlaying(m_videoPipeline.get()); }

    /// Whether the chosen camera streams with the chosen size and rate.
    [[nodiscard]] bool isSelectionStreaming() const
    {
        return cameraStreamRunning() && m_appliedCameraName == m_cameraName
               && m_appliedSize == QSize(m_width, m_height) && m_appliedFramerate == m_framerate;
    }

    /// See StreamMeter::framesPerSecond().
    [[nodiscard]] int streamFramesPerSecond() const { return m_meter.framesPerSecond(); }
    /// See StreamMeter::size().
    [[nodiscard]] QSize streamSize() const { return m_meter.size(); }

    [[nodiscard]] StreamPreview *preview() { return &m_preview; }

    /// Names of the host's cameras in ascending order. Cameras with the same name share one entry.
    [[nodiscard]] QStringList cameras() const { return m_discovery.cameras().keys(); }
    /// Frame sizes of the selected camera, see availableResolutions(). Empty without a camera.
    [[nodiscard]] QVariantList resolutions() const;
    /// Frame rates of the selected camera at the selected size, largest first. Empty if the index
    /// of the size is out of range.
    [[nodiscard]] QStringList framerates() const;

    /// Numerator and denominator in frames per second, "30/1"; empty if the camera may choose.
    [[nodiscard]] QString framerate() const { return m_framerate; }
    /// Selects a frame rate. A text without "/" lets the camera choose.
    void setFramerate(const QString &framerate);

    /// In pixels; negative if the camera may choose.
    [[nodiscard]] int width() const { return m_width; }
    void setWidth(int width);
    /// In pixels; negative if the camera may choose.
    [[nodiscard]] int height() const { return m_height; }
    void setHeight(int height);

    /// Index of the selected size in resolutions().
    [[nodiscard]] int resolutionIndex() const { return m_resolutionIndex; }
    /*!
     * Selects the width and height of an entry of resolutions(), and its largest frame rate unless
     * it has the selected one. If the entry has no frame rates, the selected one stays. If the
     * index is out of range, width, height and frame rate stay.
     */
    void setResolutionIndex(int index);

    /// Name of the selected camera. It stays when the last camera is unplugged.
    [[nodiscard]] QString cameraName() const { return m_cameraName; }
    /// Selects a camera and its first size. For an unknown name, width, height and rate stay.
    void setCameraName(const QString &name);

    /// Reads the cameras, selects the first one if the selected one is missing, and applies the
    /// selection. The plugin calls it before it shows the window, once the emulator is connected.
    void setupCameraStreamPipeline();

    /// Reads the cameras anew and selects the first one. Ends a camera's stream. A video file plays
    /// on, because the user did not ask for a camera.
    Q_INVOKABLE void updateCamerasList();

    /// Ends any stream, then streams the camera that was applied last. If it was unplugged or its
    /// size cannot be streamed, applies the selection first. If that size cannot be streamed
    /// either, nothing starts. Without any camera, streamRunning() becomes true but nothing is
    /// sent.
    Q_INVOKABLE void startCameraStream();
    /// Ends a camera's stream.
    Q_INVOKABLE void stopCameraStream();
    /*!
     * Ends any stream, then plays a local file in a loop if it holds VP8 or VP9. The check of the
     * codec takes up to two seconds. An empty path only ends the stream.
     */
    Q_INVOKABLE void startVideoStream(const QString &filePath);
    /// Ends the stream of a video file.
    Q_INVOKABLE void stopVideoStream();
    /// Ends any stream. Nothing is sent after it returns.
    Q_INVOKABLE void stopStreams();
    /// Applies the selected camera, size and frame rate. Any running stream, even that of a video
    /// file, is replaced by the camera's. A size that cannot be streamed changes nothing.
    Q_INVOKABLE void setCameraStreamSettings();

    /// The path of a local file's URL. Empty for other URLs, and if the URL's escapes are not
    /// UTF-8, because QString cannot hold that path.
    Q_INVOKABLE [[nodiscard]] static QString localPath(const QUrl &url);

public Q_SLOTS:
    /// Plays the video file again, unless it was stopped. See VideoFilePipeline::restart().
    void restartVideoStream();

Q_SIGNALS:
    /// Emitted by each start and stop, even if streamRunning() stays the same.
    void streamRunningChanged();
    /// A camera's stream was started; the size is invalid if the camera may choose.
    void cameraStreamStarted(const QString &name, QSize size, const QString &framerate);
    void videoStreamStarted(const QString &filePath);
    /// The running stream was stopped, or is about to be replaced by another one.
    void streamStopped();
    /// streamFramesPerSecond() and streamSize() were measured or became unknown.
    void streamMeasured();
    void frameratesChanged();
    void resolutionsChanged();
    void camerasChanged();
    void framerateChanged();
    void widthChanged();
    void heightChanged();
    void resolutionIndexChanged();
    void cameraNameChanged();
    /// The video file came to its end. Emitted on one of GStreamer's threads.
    void videoStreamStopped();
    /// The camera's pipeline now uses the selected camera, size and frame rate.
    void cameraStreamSettingsApplied();
    /// Tells whether the codec of a file that is to be played is supported. \a codecName is empty
    /// if it could not be read.
    void videoFileCodecChecked(bool success, const QString &codecName);
    /// A stream was not started, or the selection was not applied, because the pictures are larger
    /// than maximumSideLength.
    void streamSizeRefused(QSize size);

private:
    [[nodiscard]] bool cameraStreamRunning() const { return isPlaying(m_cameraPipeline.get()); }
    [[nodiscard]] bool isPlaying(const StreamPipeline *pipeline) const
    {
        return m_playing && m_playing == pipeline;
    }
    void handlePlugged();
    void handleUnplugged(const QString &name);
    void handleRemoved(const QString &name);
    void selectFirstCamera();
    void applySelection(bool restart);
    CameraPipeline *cameraPipeline();
    VideoFilePipeline *videoPipeline();
    void play(StreamPipeline *pipeline);
    void stopPlaying();
    bool checkVideoFile(const QString &path);

    CameraDiscovery m_discovery;
    QString m_framerate;
    int m_width = -1;
    int m_height = -1;
    int m_resolutionIndex = 0;
    QString m_cameraName;
    // Made by the first use: their elements load five libraries, which an IDE whose user opens no
    // window does not need.
    std::unique_ptr<VideoFilePipeline> m_videoPipeline;
    std::unique_ptr<CameraPipeline> m_cameraPipeline;
    QString m_appliedCameraName; // the camera, size and rate that m_cameraPipeline uses
    QSize m_appliedSize;
    QString m_appliedFramerate;
    StreamPipeline *m_playing = nullptr; // streamRunning() and videoStreamRunning() derive from it
    StreamMeter m_meter;
    StreamPreview m_preview;
};
