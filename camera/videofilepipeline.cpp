#include "videofilepipeline.h"

#include <gst/gst.h>

#include <QFileInfo>

#include <chrono>

using namespace std::chrono_literals;

static constexpr StreamPipeline::Names names{.pipeline = "video-stream-pipeline",
                                             .jpegEncoder = "jpegencVS",
                                             .rtpPayloader = "m_rtpjpegpayVS",
                                             .udpSink = "udpsinkVS"};
// A file without pictures ends at once. Replaying it without a pause would keep the processor busy.
// Any film is longer than this.
static constexpr std::chrono::milliseconds shortestLoop = 100ms;

/// Links the first pad with pictures. Linking a pad with sound, or a second one, fails.
static void onDecodeBinPadAdded(GstElement *decodeBin, GstPad *pad, void *jpegEncoder)
{
    Q_UNUSED(decodeBin)
    const ObjectReference<GstPad> sinkPad(
        gst_element_get_static_pad(static_cast<GstElement *>(jpegEncoder), "sink"));
    gst_pad_link(pad, sinkPad.get());
}

static GstPadProbeReturn onEventReceived(GstPad *pad, GstPadProbeInfo *info, void *pipeline)
{
    Q_UNUSED(pad)
    if (GST_EVENT_TYPE(GST_PAD_PROBE_INFO_EVENT(info)) == GST_EVENT_EOS)
        Q_EMIT static_cast<VideoFilePipeline *>(pipeline)->ended();
    return GST_PAD_PROBE_PASS;
}

VideoFilePipeline::VideoFilePipeline(QObject *parent)
    : QObject(parent)
    , StreamPipeline(names)
{
    m_restartTimer.setSingleShot(true);
    connect(&m_restartTimer, &QTimer::timeout, this, &VideoFilePipeline::restart);

    m_fileSource = owned(gst_element_factory_make("filesrc", "filesrc"));
    const auto decodeBin = owned(gst_element_factory_make("decodebin", "decodebin"));
    if (!m_fileSource || !decodeBin || !jpegEncoder())
        return;
    gst_bin_add_many(GST_BIN(pipeline()), m_fileSource.get(), decodeBin.get(), nullptr);
    gst_element_link(m_fileSource.get(), decodeBin.get());
    g_signal_connect(decodeBin.get(), "pad-added", G_CALLBACK(onDecodeBinPadAdded), jpegEncoder());
    const ObjectReference<GstPad> sinkPad(gst_element_get_static_pad(udpSink(), "sink"));
    gst_pad_add_probe(sinkPad.get(), GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM, onEventReceived, this,
                      nullptr);
}

VideoFilePipeline::~VideoFilePipeline()
{
    // The threads that emit ended() must end before this object; the base class stops them later.
    stop();
}

void VideoFilePipeline::setFile(const QString &path)
{
    m_path = path;
    g_object_set(m_fileSource.get(), "location", path.toLocal8Bit().constData(), nullptr);
}

void VideoFilePipeline::play()
{
    m_sincePlay.start();
    // Opening a named pipe would block this thread until another process writes to it.
    if (QFileInfo(m_path).isFile())
        StreamPipeline::play();
}

void VideoFilePipeline::stop()
{
    m_restartTimer.stop();
    StreamPipeline::stop();
}

void VideoFilePipeline::restart()
{
    const auto loop = std::chrono::floor<std::chrono::milliseconds>(m_sincePlay.durationElapsed());
    if (loop < shortestLoop) {
        m_restartTimer.start(shortestLoop - loop);
        return;
    }
    stop();
    play();
}
