#pragma once

#include "servicemethods.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <chrono>
#include <deque>

namespace EmulationManagement::Internal {

class RemoteDBusInvokerService;

/// One call of a service, as the log keeps it.
struct LoggedCall
{
    enum class Outcome {
        Waiting,  ///< for its reply
        Answered, ///< without an error
        Refused,  ///< the emulator replied with an error
        Lost,     ///< the connection was lost before the reply came
        Dropped,  ///< not sent, because the link was down
        Noted     ///< not sent over the link
    };
    using Clock = std::chrono::steady_clock;

    Clock::time_point time; ///< when it left
    Clock::duration latency{}; ///< from then to the reply
    const ServiceMethod *method = nullptr; ///< null for a method that is not described
    /// As MethodArguments reads them; the whole request if there is no method.
    QString arguments = {};
    qsizetype omitted = 0; ///< the number of characters by which a long text was shortened
    QString reply = {};         ///< the returned value, or the error
    Outcome outcome = Outcome::Waiting;
};

/*!
 * Sees each call leave and each reply arrive, and keeps the last calls.
 *
 * Replies carry no number. They come in the order of the calls of one connection, so the oldest
 * call without a reply gets it. Calls have serial numbers that begin with 0 and never change.
 *
 * Long texts are shortened: a track takes tens of megabytes.
 */
class CallLog : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype capacity = 100'000;      ///< calls
    static constexpr qsizetype longestText = 64 << 10;  ///< characters of a call
    static constexpr qsizetype longestTexts = 32 << 20; ///< characters of all calls

    struct Totals
    {
        qint64 calls = 0;
        qint64 refused = 0;
        qint64 lost = 0;
        qint64 dropped = 0;
    };
    struct Latencies
    {
        std::chrono::duration<double, std::milli> median{};
        std::chrono::duration<double, std::milli> percentile99{};
    };

    /// \a link must outlive the log.
    explicit CallLog(RemoteDBusInvokerService *link, QObject *parent = nullptr);

    /// The serial numbers of the calls that are kept.
    [[nodiscard]] qint64 begin() const { return m_begin; }
    [[nodiscard]] qint64 end() const { return m_begin + qint64(m_calls.size()); }
    [[nodiscard]] const LoggedCall &at(qint64 serial) const
    {
        return m_calls[std::size_t(serial - m_begin)];
    }

    /// The time of the clock on the wall, which does not change when the clock is set.
    [[nodiscard]] QDateTime wallTime(LoggedCall::Clock::time_point time) const;

    /// The number of calls that wait for their replies.
    [[nodiscard]] qsizetype waiting() const { return qsizetype(m_waiting.size()); }

    /// Counts all calls since the last clear(), also those that are no longer kept.
    [[nodiscard]] const Totals &totals() const { return m_totals; }
    /// The calls of the last second.
    [[nodiscard]] qint64 callsPerSecond() const;
    /// Of the answered and refused calls that are kept; zero if there are none. Takes about a
    /// millisecond.
    [[nodiscard]] Latencies latencies() const;

    /// Notes something that is not sent over the link, such as the start of the camera's stream.
    void add(const ServiceMethod &method, const QString &arguments);
    /// Notes a text that is no call and is not counted.
    void note(const QString &text);
    /// Forgets all calls.
    void clear();

Q_SIGNALS:
    /// A call was added: the last one.
    void added();
    /// The outcome of this call is known. It may no longer be kept.
    void finished(qint64 serial);
    void cleared();

private:
    using Outcome = LoggedCall::Outcome;

    void append(const QString &request, Outcome outcome);
    void append(LoggedCall call);
    void takeReply(const QString &reply);
    void loseWaitingCalls();
    void finish(qint64 serial, Outcome outcome, const QString &reply);

    LoggedCall::Clock::time_point m_start = LoggedCall::Clock::now();
    QDateTime m_startOnTheWall = QDateTime::currentDateTime();
    std::deque<LoggedCall> m_calls;
    qint64 m_begin = 0;
    qint64 m_clearedEnd = 0; // the totals count from this call on
    std::deque<qint64> m_waiting; // the calls that wait for replies, in their order
    qsizetype m_textSize = 0;
    Totals m_totals;
};

} // namespace EmulationManagement::Internal
