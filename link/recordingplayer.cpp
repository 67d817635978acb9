#include "recordingplayer.h"

#include "remotedbusinvokerservice.h"

#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

using std::chrono::microseconds;

// After this time the event loop gets a turn, so that windows keep responding.
static constexpr std::chrono::milliseconds longestTurn{10};
// Windows show that it plays before the first call, which would be late otherwise.
static constexpr std::chrono::milliseconds leadTime{50};
// Enough to paint a part of a window.
static constexpr std::chrono::milliseconds shortestGap{20};
static constexpr microseconds latenessUnit{100};

/// Calls with the same key replace each other. Empty for a call that sets nothing.
static QString stateKey(const RecordedCall &call)
{
    const QString method = call.method->name;
    if (call.method->service == &cameraService)
        return u"camera"_s;
    if (method == u"enabled"_s)
        return {};
    if (method == u"enableSensor"_s || method == u"disableSensor"_s)
        return u"sensor "_s + call.arguments;
    if (method == u"startTrack"_s || method == u"pauseTrack"_s || method == u"stopTrack"_s)
        return u"playback"_s;
    return method;
}

RecordingPlayer::RecordingPlayer(RemoteDBusInvokerService *link, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_services(services().begin(), services().end())
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QChronoTimer::timeout, this, &RecordingPlayer::sendDueCalls);
    connect(link, &RemoteDBusInvokerService::connectionLost, this,
            &RecordingPlayer::handleConnectionLost);
    connect(link, &RemoteDBusInvokerService::webSocketConnected, this, [this] {
        const bool waited = std::exchange(m_waitingForLink, false);
        if (waited || m_state == State::Paused)
            sendLastValues(); // an emulator that was started again has lost them
        if (waited && m_state == State::Playing) {
            startClock(m_position);
            schedule();
        }
    });
}

bool RecordingPlayer::isChosen(const RecordedCall &call) const
{
    return std::ranges::find(m_services, call.method->service) != m_services.end();
}

/// Returns the indexes of the last calls of each kind before \a end, in their order.
std::vector<std::size_t> RecordingPlayer::lastValues(std::size_t end) const
{
    QSet<QString> seen;
    std::vector<std::size_t> indexes;
    for (std::size_t i = end; i-- > 0;) {
        const RecordedCall &call = m_recording.calls()[i];
        const QString key = stateKey(call);
        if (key.isEmpty() || seen.contains(key) || !isChosen(call))
            continue;
        seen.insert(key);
        indexes.push_back(i);
    }
    std::ranges::reverse(indexes);
    return indexes;
}

void RecordingPlayer::setRecording(Recording recording)
{
    stop();
    m_recording = std::move(recording);
}

void RecordingPlayer::setRate(double rate)
{
    startClock(position());
    m_rate = std::clamp(rate, slowestRate, fastestRate);
    if (m_timer.isActive())
        schedule();
}

microseconds RecordingPlayer::position() const
{
    if (m_state != State::Playing || m_waitingForLink)
        return m_position;
    const std::chrono::duration<double, std::micro> played = (Clock::now() - m_clockStart) * m_rate;
    return std::clamp(m_position + std::chrono::duration_cast<microseconds>(played), m_position,
                      std::max(m_position, m_recording.duration()));
}

void RecordingPlayer::startClock(microseconds time, Clock::duration lead)
{
    m_position = time;
    m_clockStart = Clock::now() + lead;
}

RecordingPlayer::Clock::time_point RecordingPlayer::dueTime(microseconds time) const
{
    return m_clockStart
           + std::chrono::duration_cast<Clock::duration>(
               std::chrono::duration<double, std::micro>(time - m_position) / m_rate);
}

void RecordingPlayer::setState(State state)
{
    if (state == m_state)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}

void RecordingPlayer::play()
{
    if (m_state == State::Playing)
        return;
    if (m_next == m_recording.calls().size()) { // steps or a seek came to the end
        m_next = 0;
        m_position = {};
    }
    startTotals();
    startClock(m_position, leadTime);
    m_waitingForLink = false;
    setState(State::Playing);
    if (m_link->isConnected())
        schedule();
    else
        handleConnectionLost();
}

void RecordingPlayer::sendLastValues()
{
    if (!m_link->isConnected())
        return;
    for (const std::size_t index : lastValues(m_next))
        send(m_recording.calls()[index]);
}

void RecordingPlayer::pause()
{
    if (m_state != State::Playing)
        return;
    m_position = position();
    m_timer.stop();
    setState(State::Paused);
}

void RecordingPlayer::stop()
{
    m_timer.stop();
    m_next = 0;
    m_position = {};
    m_startsAnew = true;
    setState(State::Stopped);
}

void RecordingPlayer::step()
{
    if (m_state == State::Playing || !m_link->isConnected())
        return;
    const std::vector<RecordedCall> &calls = m_recording.calls();
    while (m_next < calls.size() && !isChosen(calls[m_next]))
        ++m_next;
    if (m_next == calls.size()) {
        end();
        return;
    }
    setState(State::Paused);
    const RecordedCall &call = calls[m_next++];
    m_position = call.time;
    send(call);
}

void RecordingPlayer::seek(microseconds time)
{
    const std::vector<RecordedCall> &calls = m_recording.calls();
    time = std::clamp(time, microseconds(), m_recording.duration());
    const auto next = std::ranges::lower_bound(calls, time, {}, &RecordedCall::time);
    m_next = std::size_t(next - calls.begin());
    if (m_state == State::Stopped)
        setState(State::Paused);
    sendLastValues();
    startClock(time);
    if (m_timer.isActive())
        schedule();
}

void RecordingPlayer::end()
{
    stop();
    Q_EMIT finished();
}

// The totals of the last play stay until the next one begins.
void RecordingPlayer::startTotals()
{
    if (!std::exchange(m_startsAnew, false))
        return;
    m_totals = {};
    m_lateness = {};
}

void RecordingPlayer::send(const RecordedCall &call)
{
    startTotals();
    ++m_totals.calls;
    if (call.method->service == &cameraService) {
        Q_EMIT cameraCallDue(call);
        return;
    }
    m_link->sendRequest(requestAddress(*call.method->service) + call.method->name + u' '
                        + call.arguments);
}

void RecordingPlayer::noteLateness(Clock::duration lateness)
{
    const auto late = std::max(microseconds(), std::chrono::duration_cast<microseconds>(lateness));
    m_totals.latest = std::max(m_totals.latest, late);
    ++m_lateness[std::min(std::size_t(late / latenessUnit), m_lateness.size() - 1)];
}

microseconds RecordingPlayer::latenessQuantile(double part) const
{
    qint64 count = 0;
    for (const qint64 calls : m_lateness)
        count += calls;
    auto missing = qint64(part * double(count));
    for (std::size_t i = 0; i < m_lateness.size(); ++i) {
        missing -= m_lateness[i];
        if (missing <= 0)
            return (i + 1) * latenessUnit;
    }
    return m_lateness.size() * latenessUnit;
}

void RecordingPlayer::sendDueCalls()
{
    const Clock::time_point turn = Clock::now();
    // A call may lose the link, and whoever plays the camera may pause or stop.
    while (m_state == State::Playing && !m_waitingForLink && m_next < m_recording.calls().size()) {
        const RecordedCall &call = m_recording.calls()[m_next];
        const Clock::time_point now = Clock::now();
        const Clock::duration lateness = now - dueTime(call.time);
        if (lateness.count() < 0 || now - turn > longestTurn)
            break;
        ++m_next;
        if (!isChosen(call))
            continue;
        send(call);
        noteLateness(lateness);
    }
    if (m_state == State::Playing && !m_waitingForLink)
        schedule();
}

void RecordingPlayer::schedule()
{
    if (m_next < m_recording.calls().size()) {
        const Clock::duration wait = dueTime(m_recording.calls()[m_next].time) - Clock::now();
        m_timer.setInterval(std::max(std::chrono::nanoseconds(), std::chrono::nanoseconds(wait)));
        m_timer.start();
        if (wait > shortestGap)
            Q_EMIT gapBegan();
        return;
    }
    // A recording without a duration would loop without a pause.
    if (m_looped && m_recording.duration().count() > 0) {
        const Clock::time_point end = dueTime(m_recording.duration());
        m_next = 0;
        m_position = {};
        m_clockStart = end;
        schedule();
        return;
    }
    end();
}

void RecordingPlayer::handleConnectionLost()
{
    if (m_state != State::Playing || m_waitingForLink)
        return;
    m_position = position();
    m_timer.stop();
    if (m_whenLinkIsDown == WhenLinkIsDown::Stop)
        stop();
    else
        m_waitingForLink = true;
    Q_EMIT linkIsDown();
}

} // namespace EmulationManagement::Internal
