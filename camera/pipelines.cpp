// The part of the camera manager that streams: one pipeline for a camera, one for a video file.

#include "cameraemulationmanager.h"

#include <gst/gst.h>

#include <QFileInfo>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr int jpegQuality = 50;
// Shorter than any film: only a file without pictures would come to its end again and again.
static constexpr std::chrono::milliseconds shortestLoop = 100ms;

struct OutputNames
{
    const char *jpegEncoder;
    const char *rtpPayloader;
    const char *udpSink;
};

static constexpr OutputNames videoOutput{"jpegencVS", "m_rtpjpegpayVS", "udpsinkVS"};
static constexpr OutputNames cameraOutput{"jpegencCam", "rtpjpegpayCam", "udpsinkCam"};

static ObjectReference<GstElement> createElement(const char *factory, const char *name)
{
    return owned(gst_element_factory_make(factory, name));
}

static GstBusSyncReply dropMessage(GstBus *bus, GstMessage *message, gpointer userData)
{
    Q_UNUSED(bus)
    Q_UNUSED(userData)
    gst_message_unref(message);
    return GST_BUS_DROP;
}

/// Nobody reads what a pipeline reports, and unread messages would pile up.
static ObjectReference<GstElement> createPipeline(const char *name)
{
    ObjectReference<GstElement> pipeline = owned(gst_pipeline_new(name));
    const ObjectReference<GstBus> bus(gst_element_get_bus(pipeline.get()));
    gst_bus_set_sync_handler(bus.get(), dropMessage, nullptr, nullptr);
    return pipeline;
}

/// Does not query the state before: that waits for ever for the first frame of a file without any.
static void stop(const ObjectReference<GstElement> &pipeline)
{
    gst_element_set_state(pipeline.get(), GST_STATE_NULL);
}

static void play(const ObjectReference<GstElement> &pipeline)
{
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
}

/// Adds what both pipelines end with. Returns the encoder, or null where GStreamer lacks its good
/// plugins: no stream will play then.
static ObjectReference<GstElement> addOutput(GstElement *pipeline, const OutputNames &names,
                                             StreamMeter *meter)
{
    auto jpegEncoder = createElement("jpegenc", names.jpegEncoder);
    const auto rtpPayloader = createElement("rtpjpegpay", names.rtpPayloader);
    const auto udpSink = createElement("udpsink", names.udpSink);
    if (!jpegEncoder || !rtpPayloader || !udpSink)
        return {};

    g_object_set(jpegEncoder.get(), "quality", jpegQuality, nullptr);
    g_object_set(udpSink.get(), "host", CameraEmulationManager::localhost, "port",
                 CameraEmulationManager::udpPort, nullptr);
    gst_bin_add_many(GST_BIN(pipeline), jpegEncoder.get(), rtpPayloader.get(), udpSink.get(),
                     nullptr);
    gst_element_link_many(jpegEncoder.get(), rtpPayloader.get(), udpSink.get(), nullptr);
    meter->countFramesOf(udpSink.get());
    return jpegEncoder;
}

/// Of the pads of a file, the first that carries pictures is linked; later ones fail to.
static void onDecodeBinPadAdded(GstElement *decodeBin, GstPad *pad, void *jpegEncoder)
{
    Q_UNUSED(decodeBin)
    const ObjectReference<GstPad> sinkPad(
        gst_element_get_static_pad(static_cast<GstElement *>(jpegEncoder), "sink"));
    gst_pad_link(pad, sinkPad.get());
}

static GstPadProbeReturn onEventReceived(GstPad *pad, GstPadProbeInfo *info, void *manager)
{
    Q_UNUSED(pad)
    // on a thread of the pipeline's, which must not stop it: the connection queues
    if (GST_EVENT_TYPE(GST_PAD_PROBE_INFO_EVENT(info)) == GST_EVENT_EOS)
        Q_EMIT static_cast<CameraEmulationManager *>(manager)->videoStreamStopped();
    return GST_PAD_PROBE_PASS;
}

void CameraEmulationManager::constructVideoStreamPipeline()
{
    m_videoPipeline = createPipeline("video-stream-pipeline");
    m_fileSource = createElement("filesrc", "filesrc");
    const auto decodeBin = createElement("decodebin", "decodebin");
    const auto jpegEncoder = addOutput(m_videoPipeline.get(), videoOutput, &m_meter);
    if (!m_fileSource || !decodeBin || !jpegEncoder)
        return; // GStreamer lacks its base or good plugins: no file will play

    gst_bin_add_many(GST_BIN(m_videoPipeline.get()), m_fileSource.get(), decodeBin.get(), nullptr);
    gst_element_link(m_fileSource.get(), decodeBin.get());
    g_signal_connect(decodeBin.get(), "pad-added", G_CALLBACK(onDecodeBinPadAdded),
                     jpegEncoder.get());
    const ObjectReference<GstElement> udpSink(
        gst_bin_get_by_name(GST_BIN(m_videoPipeline.get()), videoOutput.udpSink));
    const ObjectReference<GstPad> sinkPad(gst_element_get_static_pad(udpSink.get(), "sink"));
    gst_pad_add_probe(sinkPad.get(), GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM, onEventReceived, this,
                      nullptr);
}

void CameraEmulationManager::constructCameraStreamPipeline()
{
    m_appliedCameraName = m_cameraName;
    m_appliedSize = {m_width, m_height};
    m_cameraPipeline = createPipeline("camera-stream-pipeline");
    const CameraSource camera = m_discovery.cameras().value(m_cameraName).source;
    const auto source = createElement(camera.factory.toUtf8().constData(), "sourcePluginCam");
    const auto capsFilter = createElement("capsfilter", "capsfilterCam");
    const auto jpegEncoder = addOutput(m_cameraPipeline.get(), cameraOutput, &m_meter);
    if (!source || !capsFilter || !jpegEncoder)
        return; // no camera is selected, or GStreamer lacks plugins: no camera will stream

    // takes the text form of any type of property
    if (!camera.property.isEmpty() && !camera.value.isEmpty())
        gst_util_set_object_arg(G_OBJECT(source.get()), camera.property.toUtf8().constData(),
                                camera.value.toUtf8().constData());
    QString text = u"video/x-raw"_s;
    if (m_width >= 0 && m_height >= 0)
        text += u",width=%1,height=%2"_s.arg(m_width).arg(m_height);
    if (!m_framerate.isEmpty())
        text += u",framerate=%1"_s.arg(m_framerate);
    const MiniObjectReference<GstCaps> caps(gst_caps_from_string(text.toUtf8().constData()));
    g_object_set(capsFilter.get(), "caps", caps.get(), nullptr);

    gst_bin_add_many(GST_BIN(m_cameraPipeline.get()), source.get(), capsFilter.get(), nullptr);
    gst_element_link_many(source.get(), capsFilter.get(), jpegEncoder.get(), nullptr);
}

void CameraEmulationManager::stopPipelines()
{
    stop(m_cameraPipeline);
    stop(m_videoPipeline);
    m_playing = Source::None;
    m_restartTimer.stop();
    m_meter.stop();
}

void CameraEmulationManager::setPlaying(Source source)
{
    m_playing = source;
    const bool isCamera = source == Source::Camera;
    GstElement *pipeline = isCamera ? m_cameraPipeline.get() : m_videoPipeline.get();
    const char *jpegEncoder = isCamera ? cameraOutput.jpegEncoder : videoOutput.jpegEncoder;
    m_meter.start(ObjectReference<GstElement>(gst_bin_get_by_name(GST_BIN(pipeline), jpegEncoder)));
}

void CameraEmulationManager::applySelection(bool restart)
{
    if (restart)
        stopStreams();
    constructCameraStreamPipeline();
    if (restart)
        startCameraStream();
    Q_EMIT cameraStreamSettingsApplied();
}

void CameraEmulationManager::setCameraStreamSettings()
{
    if (isStreamable({m_width, m_height}))
        applySelection(streamRunning());
    else
        Q_EMIT streamSizeRefused({m_width, m_height});
}

void CameraEmulationManager::startCameraStream()
{
    stopPipelines();
    // What was applied last may be unplugged by now, too large, or nothing at all.
    if (!m_discovery.cameras().isEmpty()
        && (!m_discovery.cameras().contains(m_appliedCameraName) || !isStreamable(m_appliedSize))) {
        if (!m_discovery.cameras().contains(m_cameraName))
            selectFirstCamera();
        applySelection(false);
    }
    const bool isAccepted = isStreamable(m_appliedSize);
    if (isAccepted) {
        play(m_cameraPipeline);
        setPlaying(Source::Camera);
    }
    Q_EMIT streamRunningChanged();
    if (!isAccepted)
        Q_EMIT streamSizeRefused(m_appliedSize);
}

void CameraEmulationManager::stopCameraStream()
{
    if (m_playing == Source::Camera)
        stopPipelines();
    Q_EMIT streamRunningChanged();
}

void CameraEmulationManager::startVideoStream(const QString &filePath)
{
    stopPipelines();
    if (!filePath.isEmpty() && checkVideoFile(filePath)) {
        m_videoFile = filePath;
        g_object_set(m_fileSource.get(), "location", filePath.toLocal8Bit().constData(), nullptr);
        playVideo();
        setPlaying(Source::VideoFile);
    }
    // also without a new stream: the one before has ended
    Q_EMIT streamRunningChanged();
}

void CameraEmulationManager::stopVideoStream()
{
    if (m_playing == Source::VideoFile)
        stopPipelines();
    Q_EMIT streamRunningChanged();
}

void CameraEmulationManager::stopStreams()
{
    stopPipelines();
    Q_EMIT streamRunningChanged();
}

void CameraEmulationManager::restartVideoStream()
{
    // stopped while the news of the file's end was on its way here
    if (m_playing != Source::VideoFile)
        return;
    const auto loop
        = std::chrono::floor<std::chrono::milliseconds>(m_sinceVideoStart.durationElapsed());
    if (loop < shortestLoop) {
        m_restartTimer.start(shortestLoop - loop);
        return;
    }
    stop(m_videoPipeline);
    playVideo();
}

void CameraEmulationManager::playVideo()
{
    m_restartTimer.stop();
    m_sinceVideoStart.start();
    // a pipe in the place of the file would hold this thread until somebody writes to it
    if (QFileInfo(m_videoFile).isFile())
        play(m_videoPipeline);
}
