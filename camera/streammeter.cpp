#include "streammeter.h"

#include <gst/gst.h>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

static constexpr std::chrono::milliseconds interval = 1s;
// A camera may take one second for its first frame, or between two.
static constexpr int measurementsUntilNoFrames = 2;

static GstPadProbeReturn countFrame(GstPad *pad, GstPadProbeInfo *info, void *frameCount)
{
    Q_UNUSED(pad)
    Q_UNUSED(info)
    ++*static_cast<std::atomic<int> *>(frameCount);
    return GST_PAD_PROBE_PASS;
}

static QSize sizeOfFrames(GstElement *jpegEncoder)
{
    const ObjectReference<GstPad> pad(gst_element_get_static_pad(jpegEncoder, "src"));
    const MiniObjectReference<GstCaps> caps(gst_pad_get_current_caps(pad.get()));
    int width = -1;
    int height = -1;
    if (caps) {
        const GstStructure *structure = gst_caps_get_structure(caps.get(), 0);
        gst_structure_get(structure, "width", G_TYPE_INT, &width, "height", G_TYPE_INT, &height,
                          nullptr);
    }
    return {width, height};
}

StreamMeter::StreamMeter(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(interval);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &StreamMeter::measure);
}

void StreamMeter::countFramesOf(GstElement *udpSink)
{
    // the payloader pushes the packets of a frame as one list
    const ObjectReference<GstPad> pad(gst_element_get_static_pad(udpSink, "sink"));
    gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_BUFFER_LIST, countFrame, &m_frameCount,
                      nullptr);
}

void StreamMeter::start(ObjectReference<GstElement> jpegEncoder)
{
    m_jpegEncoder = std::move(jpegEncoder);
    m_frameCount = 0;
    m_measurementsWithoutFrame = 0;
    m_sinceMeasurement.start();
    m_timer.start();
    reset();
}

void StreamMeter::stop()
{
    m_timer.stop();
    m_jpegEncoder.reset();
    reset();
}

int StreamMeter::framesPerSecond() const
{
    return m_framesPerSecond;
}

QSize StreamMeter::size() const
{
    return m_size;
}

void StreamMeter::measure()
{
    const int frames = m_frameCount.exchange(0);
    const double seconds = static_cast<double>(m_sinceMeasurement.restart()) / 1000;
    m_measurementsWithoutFrame = frames > 0 ? 0 : m_measurementsWithoutFrame + 1;
    if (frames > 0) {
        m_framesPerSecond = std::max(qRound(frames / seconds), 1);
        m_size = sizeOfFrames(m_jpegEncoder.get());
    } else if (m_measurementsWithoutFrame >= measurementsUntilNoFrames) {
        m_framesPerSecond = 0;
        m_size = {};
    }
    Q_EMIT measured();
}

void StreamMeter::reset()
{
    m_framesPerSecond = -1;
    m_size = {};
    Q_EMIT measured();
}
