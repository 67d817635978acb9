#include "cameraemulationmanager.h"

#include "codeccheck.h"

#include <QUrl>

#include <utility>

using namespace Qt::StringLiterals;

const QString CameraEmulationManager::portForwardingRule = u"emulationmanagementudp"_s;

CameraEmulationManager::CameraEmulationManager(QObject *parent)
    : QObject(parent)
{
    connect(&m_discovery, &CameraDiscovery::cameraRead, this, [this] {
        Q_EMIT camerasChanged();
        Q_EMIT resolutionsChanged();
        Q_EMIT frameratesChanged();
    });
    connect(&m_discovery, &CameraDiscovery::cameraPlugged, this,
            &CameraEmulationManager::handlePlugged);
    connect(&m_discovery, &CameraDiscovery::cameraUnplugged, this,
            &CameraEmulationManager::handleUnplugged);
    connect(&m_discovery, &CameraDiscovery::cameraRemoved, this,
            &CameraEmulationManager::handleRemoved);
    connect(this, &CameraEmulationManager::videoStreamStopped, this,
            &CameraEmulationManager::restartVideoStream);
    connect(&m_meter, &StreamMeter::measured, this, &CameraEmulationManager::streamMeasured);
}

QString CameraEmulationManager::localPath(const QUrl &url)
{
    const QString path = url.toLocalFile();
    return path.contains(QChar::ReplacementCharacter) ? QString() : path;
}

QVariantList CameraEmulationManager::resolutions() const
{
    return m_discovery.cameras().value(m_cameraName).resolutions;
}

QStringList CameraEmulationManager::framerates() const
{
    const QVariantMap resolution = resolutions().value(m_resolutionIndex).toMap();
    return resolution.value(u"framerates"_s).toStringList();
}

void CameraEmulationManager::setFramerate(const QString &framerate)
{
    m_framerate = framerate.contains(u'/') ? framerate : QString();
    Q_EMIT framerateChanged();
}

void CameraEmulationManager::setWidth(int width)
{
    m_width = width;
    Q_EMIT widthChanged();
}

void CameraEmulationManager::setHeight(int height)
{
    m_height = height;
    Q_EMIT heightChanged();
}

void CameraEmulationManager::setResolutionIndex(int index)
{
    m_resolutionIndex = index;
    const QVariantMap resolution = resolutions().value(index).toMap();
    setWidth(resolution.value(u"width"_s, m_width).toInt());
    setHeight(resolution.value(u"height"_s, m_height).toInt());
    const QStringList rates = framerates();
    setFramerate(rates.isEmpty() || rates.contains(m_framerate) ? m_framerate : rates.constFirst());
    Q_EMIT resolutionIndexChanged();
    Q_EMIT frameratesChanged();
}

void CameraEmulationManager::setCameraName(const QString &name)
{
    m_cameraName = name;
    setResolutionIndex(0);
    Q_EMIT cameraNameChanged();
    Q_EMIT resolutionsChanged();
    Q_EMIT frameratesChanged();
}

void CameraEmulationManager::setupCameraStreamPipeline()
{
    m_discovery.readCameras();
    const auto &cameras = m_discovery.cameras();
    if (!cameras.isEmpty() && !cameras.contains(m_cameraName))
        selectFirstCamera();
    applySelection(cameraStreamRunning());
}

void CameraEmulationManager::updateCamerasList()
{
    if (cameraStreamRunning())
        stopCameraStream();
    m_discovery.restart();
    // restart() announces each camera that it finds. An empty list is announced here.
    if (m_discovery.cameras().isEmpty())
        Q_EMIT camerasChanged();
    else
        selectFirstCamera();
    applySelection(false);
}

void CameraEmulationManager::startCameraStream()
{
    stopPlaying();
    const auto &cameras = m_discovery.cameras();
    if (!cameras.isEmpty()
        && (!cameras.contains(m_appliedCameraName)
            || !StreamPipeline::isStreamable(m_appliedSize))) {
        if (!cameras.contains(m_cameraName))
            selectFirstCamera();
        applySelection(false);
    }
    const bool isAccepted = StreamPipeline::isStreamable(m_appliedSize);
    if (isAccepted) {
        play(cameraPipeline());
        Q_EMIT cameraStreamStarted(m_appliedCameraName, m_appliedSize, m_appliedFramerate);
    }
    Q_EMIT streamRunningChanged();
    if (!isAccepted)
        Q_EMIT streamSizeRefused(m_appliedSize);
}

void CameraEmulationManager::stopCameraStream()
{
    if (cameraStreamRunning())
        stopPlaying();
    Q_EMIT streamRunningChanged();
}

void CameraEmulationManager::startVideoStream(const QString &filePath)
{
    stopPlaying();
    if (!filePath.isEmpty() && checkVideoFile(filePath)) {
        videoPipeline()->setFile(filePath);
        play(videoPipeline());
        Q_EMIT videoStreamStarted(filePath);
    }
    // Emitted even if the file is refused, because an earlier stream has ended.
    Q_EMIT streamRunningChanged();
}

void CameraEmulationManager::stopVideoStream()
{
    if (videoStreamRunning())
        stopPlaying();
    Q_EMIT streamRunningChanged();
}

void CameraEmulationManager::stopStreams()
{
    stopPlaying();
    Q_EMIT streamRunningChanged();
}

void CameraEmulationManager::setCameraStreamSettings()
{
    if (StreamPipeline::isStreamable({m_width, m_height}))
        applySelection(streamRunning());
    else
        Q_EMIT streamSizeRefused({m_width, m_height});
}

void CameraEmulationManager::restartVideoStream()
{
    // The user may have stopped it after videoStreamStopped() was queued.
    if (videoStreamRunning())
        m_videoPipeline->restart();
}

void CameraEmulationManager::handlePlugged()
{
    if (m_discovery.cameras().size() == 1)
        applySelection(cameraStreamRunning());
}

void CameraEmulationManager::handleUnplugged(const QString &name)
{
    if (cameraStreamRunning() && (name == m_cameraName || name == m_appliedCameraName))
        stopCameraStream();
    if (name == m_appliedCameraName)
        m_appliedCameraName.clear(); // its device path may differ when it is plugged in again
}

void CameraEmulationManager::handleRemoved(const QString &name)
{
    Q_EMIT camerasChanged();
    if (name != m_cameraName || m_discovery.cameras().isEmpty())
        return;
    selectFirstCamera();
    applySelection(false);
}

void CameraEmulationManager::selectFirstCamera()
{
    setCameraName(m_discovery.cameras().firstKey());
}

void CameraEmulationManager::applySelection(bool restart)
{
    if (restart)
        stopStreams();
    m_appliedCameraName = m_cameraName;
    m_appliedSize = {m_width, m_height};
    m_appliedFramerate = m_framerate;
    cameraPipeline()->setCamera(m_discovery.cameras().value(m_cameraName).source, m_appliedSize,
                                m_framerate);
    if (restart)
        startCameraStream();
    Q_EMIT cameraStreamSettingsApplied();
}

CameraPipeline *CameraEmulationManager::cameraPipeline()
{
    if (!m_cameraPipeline)
        m_cameraPipeline = std::make_unique<CameraPipeline>();
    return m_cameraPipeline.get();
}

VideoFilePipeline *CameraEmulationManager::videoPipeline()
{
    if (!m_videoPipeline) {
        m_videoPipeline = std::make_unique<VideoFilePipeline>();
        // Direct, because videoStreamStopped() itself queues the restart to this thread.
        connect(m_videoPipeline.get(), &VideoFilePipeline::ended, this,
                &CameraEmulationManager::videoStreamStopped, Qt::DirectConnection);
    }
    return m_videoPipeline.get();
}

bool CameraEmulationManager::checkVideoFile(const QString &path)
{
    const VideoStream stream = firstVideoStream(path);
    const bool success = isSupportedCodec(stream.codec);
    Q_EMIT videoFileCodecChecked(success, stream.codec);
    const bool isStreamable = StreamPipeline::isStreamable(stream.size);
    if (success && !isStreamable)
        Q_EMIT streamSizeRefused(stream.size);
    return success && isStreamable;
}

void CameraEmulationManager::play(StreamPipeline *pipeline)
{
    pipeline->play();
    m_playing = pipeline;
    m_meter.start(pipeline);
    m_preview.start(pipeline);
}

void CameraEmulationManager::stopPlaying()
{
    if (m_playing)
        m_playing->stop();
    const bool wasPlaying = std::exchange(m_playing, nullptr) != nullptr;
    m_meter.stop();
    m_preview.stop();
    if (wasPlaying)
        Q_EMIT streamStopped();
}
