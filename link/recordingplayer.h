#pragma once

#include "recording.h"

#include <QChronoTimer>
#include <QObject>

#include <array>
#include <chrono>
#include <utility>
#include <vector>

namespace EmulationManagement::Internal {

class RemoteDBusInvokerService;

/*!
 * Plays a recording: sends its calls over the link at their times.
 *
 * All times derive from one clock that nobody sets and from the moment when playing began, so
 * delays do not add up. The owner plays the camera's calls.
 */
class RecordingPlayer : public QObject
{
    Q_OBJECT

public:
    using Clock = std::chrono::steady_clock;
    enum class State { Stopped, Playing, Paused };
    enum class WhenLinkIsDown { Wait, Stop };

    static constexpr double slowestRate = 0.1;
    static constexpr double fastestRate = 100;

    /// What was sent since playing began.
    struct Totals
    {
        qint64 calls = 0;
        std::chrono::microseconds latest{}; ///< the largest delay of a call
    };

    /// \a link must outlive the player.
    explicit RecordingPlayer(RemoteDBusInvokerService *link, QObject *parent = nullptr);

    /// Stops, and takes a recording without an error.
    void setRecording(Recording recording);
    [[nodiscard]] const Recording &recording() const { return m_recording; }
    /// Plays this many times as fast.
    void setRate(double rate);
    /// Plays only the calls of these services.
    void setServices(std::vector<const Service *> services) { m_services = std::move(services); }
    void setLooped(bool looped) { m_looped = looped; }
    void setWhenLinkIsDown(WhenLinkIsDown reaction) { m_whenLinkIsDown = reaction; }

    [[nodiscard]] State state() const { return m_state; }
    /// Whether it plays, but the link is down.
    [[nodiscard]] bool isWaitingForLink() const
    {
        return m_state == State::Playing && m_waitingForLink;
    }
    /// The place in the recording.
    [[nodiscard]] std::chrono::microseconds position() const;
    [[nodiscard]] const Totals &totals() const { return m_totals; }
    /// The delay that this part of the calls (0 to 1) did not exceed, at most 100 ms.
    [[nodiscard]] std::chrono::microseconds latenessQuantile(double part) const;

    /// Plays from the place on, from the start if the place is the end.
    void play();
    void pause();
    /// Goes back to the start. Sends nothing.
    void stop();
    /// Sends the next call unless playing, and goes to its time. After the last one it ends.
    void step();
    /// Goes to a time and sends the last value of each method before it. Pauses if stopped.
    void seek(std::chrono::microseconds time);

Q_SIGNALS:
    void stateChanged();
    /// A call of the camera is due, see cameraService.
    void cameraCallDue(const EmulationManagement::Internal::RecordedCall &call);
    /// The recording was played or stepped to its end.
    void finished();
    /// No call is due soon: whatever takes time delays no call now.
    void gapBegan();
    /// The link is down, which ends the play if that was chosen.
    void linkIsDown();

private:
    void setState(State state);
    void sendDueCalls();
    void schedule();
    void end();
    void sendLastValues();
    void startTotals();
    void send(const RecordedCall &call);
    [[nodiscard]] bool isChosen(const RecordedCall &call) const;
    [[nodiscard]] std::vector<std::size_t> lastValues(std::size_t end) const;
    [[nodiscard]] Clock::time_point dueTime(std::chrono::microseconds time) const;
    void startClock(std::chrono::microseconds time, Clock::duration lead = {});
    void handleConnectionLost();
    void noteLateness(Clock::duration lateness);

    RemoteDBusInvokerService *m_link;
    Recording m_recording;
    double m_rate = 1;
    std::vector<const Service *> m_services;
    bool m_looped = false;
    bool m_waitingForLink = false;
    bool m_startsAnew = true;
    WhenLinkIsDown m_whenLinkIsDown = WhenLinkIsDown::Wait;
    State m_state = State::Stopped;
    std::size_t m_next = 0; // the index of the next call
    std::chrono::microseconds m_position{}; // while the clock does not run
    Clock::time_point m_clockStart; // when the clock was at m_position
    QChronoTimer m_timer;
    Totals m_totals;
    std::array<qint64, 1000> m_lateness{}; // calls by their delays, in tenths of a millisecond
};

} // namespace EmulationManagement::Internal
