#include "streammeter.h"

#include "streampipeline.h"

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

static constexpr std::chrono::milliseconds interval = 1s;
// Some cameras need up to a second for the first frame or between two frames.
static constexpr int measurementsUntilNoFrames = 2;

StreamMeter::StreamMeter(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(interval);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &StreamMeter::measure);
}

void StreamMeter::start(StreamPipeline *pipeline)
{
    m_pipeline = pipeline;
    static_cast<void>(m_pipeline->takeFrameCount()); // drops the frames of an earlier stream
    m_measurementsWithoutFrame = 0;
    m_sinceMeasurement.start();
    m_timer.start();
    reset();
}

void StreamMeter::stop()
{
    m_timer.stop();
    reset();
}

void StreamMeter::measure()
{
    const int frames = m_pipeline->takeFrameCount();
    const double seconds = static_cast<double>(m_sinceMeasurement.restart()) / 1000;
    m_measurementsWithoutFrame = frames > 0 ? 0 : m_measurementsWithoutFrame + 1;
    if (frames > 0) {
        m_framesPerSecond = std::max(qRound(frames / seconds), 1);
        m_size = m_pipeline->frameSize();
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
