#include "videoreceiver.h"

#include "journalwriter.h"

#include <gst/app/gstappsink.h>
#include <gst/gst.h>

#include <algorithm>
#include <chrono>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// The receive buffer has room for several large frames that arrive at once.
static constexpr auto pipelineText
    = "udpsrc address=%1 port=%2 buffer-size=2097152"
      " caps=\"application/x-rtp,media=video,clock-rate=90000,encoding-name=JPEG\""
      " ! rtpjpegdepay ! appsink name=sink sync=false emit-signals=true"_L1;

VideoReceiver::VideoReceiver(JournalWriter &journal)
    : m_journal(journal)
{
    m_secondTimer.setInterval(1s);
    connect(&m_secondTimer, &QTimer::timeout, this, &VideoReceiver::endSecond);
}

// Ends the thread that calls onSample() before the other members are destroyed.
VideoReceiver::~VideoReceiver()
{
    m_pipeline.reset();
}

void VideoReceiver::StopPipeline::operator()(GstElement *pipeline) const noexcept
{
    gst_element_set_state(pipeline, GST_STATE_NULL);
    gst_object_unref(pipeline);
}

bool VideoReceiver::listen(const QHostAddress &address, QString *error)
{
    gst_init(nullptr, nullptr);
    const QByteArray text = QString(pipelineText).arg(address.toString()).arg(port).toUtf8();
    GError *parseError = nullptr;
    if (GstElement *pipeline = gst_parse_launch(text.constData(), &parseError))
        m_pipeline.reset(GST_ELEMENT(gst_object_ref_sink(pipeline)));
    if (parseError) { // for example without GStreamer's good plugins
        *error = u"The camera cannot receive: %1."_s.arg(QString::fromUtf8(parseError->message));
        g_error_free(parseError);
        return false;
    }
    GstElement *sink = gst_bin_get_by_name(GST_BIN(m_pipeline.get()), "sink");
    g_signal_connect(sink, "new-sample", G_CALLBACK(onSample), this);
    gst_object_unref(sink);
    if (gst_element_set_state(m_pipeline.get(), GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE)
        return true;
    *error = u"The camera cannot listen on UDP port %1 of %2."_s.arg(port).arg(address.toString());
    return false;
}

int VideoReceiver::onSample(GstElement *sink, void *receiver)
{
    GstSample *sample = gst_app_sink_pull_sample(GST_APP_SINK(sink));
    if (!sample)
        return GST_FLOW_EOS;
    QImage picture;
    GstMapInfo map;
    GstBuffer *buffer = gst_sample_get_buffer(sample);
    if (gst_buffer_map(buffer, &map, GST_MAP_READ)) {
        picture = QImage::fromData({map.data, static_cast<qsizetype>(map.size)}, "JPEG");
        gst_buffer_unmap(buffer, &map);
    }
    gst_sample_unref(sample);
    auto *self = static_cast<VideoReceiver *>(receiver);
    QMetaObject::invokeMethod(self, [self, picture] { self->addFrame(picture); });
    return GST_FLOW_OK;
}

void VideoReceiver::addFrame(const QImage &picture)
{
    const bool isFirst = !m_secondTimer.isActive();
    if (isFirst) {
        m_secondTimer.start();
        m_sinceReport.start();
    }
    if (!picture.isNull() && (isFirst || picture.size() != m_picture.size())) {
        writeSecond();
        m_journal.write("video-started"_L1,
                        {{u"width"_s, picture.width()}, {u"height"_s, picture.height()}});
    }
    ++m_frameCount;
    ++m_unreportedFrames;
    if (picture.isNull())
        ++m_brokenFrames;
    else
        m_picture = picture;
    Q_EMIT changed();
}

void VideoReceiver::endSecond()
{
    if (m_unreportedFrames > 0) {
        writeSecond();
        return;
    }
    m_secondTimer.stop();
    m_picture = {};
    m_rate = 0.0;
    m_journal.write("video-ended"_L1, {{u"frames"_s, m_frameCount}});
    Q_EMIT changed();
}

void VideoReceiver::writeSecond()
{
    const qint64 elapsed = std::max<qint64>(m_sinceReport.restart(), 1);
    if (m_unreportedFrames == 0)
        return;
    m_rate = static_cast<double>(m_unreportedFrames) * 1000 / static_cast<double>(elapsed);
    m_journal.write("video"_L1, {{u"frames"_s, m_unreportedFrames},
                                 {u"broken"_s, m_brokenFrames},
                                 {u"rate"_s, qRound(m_rate * 10) / 10.0},
                                 {u"width"_s, m_picture.width()},
                                 {u"height"_s, m_picture.height()}});
    m_unreportedFrames = 0;
    m_brokenFrames = 0;
}

} // namespace NimbraEmulator
