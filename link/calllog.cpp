#include "calllog.h"

#include "remotedbusinvokerservice.h"
#include "reply.h"

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

// Returns a bounded copy, because a request may share its text with a track.
static QString shortened(QStringView text, qsizetype *omitted)
{
    *omitted = std::max<qsizetype>(0, text.size() - CallLog::longestText);
    return text.chopped(*omitted).toString();
}

CallLog::CallLog(RemoteDBusInvokerService *link, QObject *parent)
    : QObject(parent)
{
    connect(link, &RemoteDBusInvokerService::requestSent, this,
            [this](const QString &request) { append(request, Outcome::Waiting); });
    connect(link, &RemoteDBusInvokerService::requestDropped, this,
            [this](const QString &request) { append(request, Outcome::Dropped); });
    connect(link, &RemoteDBusInvokerService::replyReceived, this, &CallLog::takeReply);
    connect(link, &RemoteDBusInvokerService::connectionLost, this, &CallLog::loseWaitingCalls);
}

void CallLog::append(const QString &request, Outcome outcome)
{
    LoggedCall call{.time = LoggedCall::Clock::now()};
    QStringView arguments;
    call.method = findMethod(request, &arguments);
    call.arguments = shortened(call.method ? arguments : request, &call.omitted);
    call.outcome = outcome;
    append(std::move(call));
}

void CallLog::append(LoggedCall call)
{
    m_totals.calls += call.outcome != Outcome::Noted;
    if (call.outcome == Outcome::Dropped)
        ++m_totals.dropped;
    if (call.outcome == Outcome::Waiting)
        m_waiting.push_back(end());
    m_textSize += call.arguments.size();
    m_calls.push_back(std::move(call));
    while (m_calls.size() > capacity || (m_textSize > longestTexts && m_calls.size() > 1)) {
        m_textSize -= m_calls.front().arguments.size() + m_calls.front().reply.size();
        m_calls.pop_front();
        ++m_begin;
    }
    Q_EMIT added();
}

void CallLog::add(const ServiceMethod &method, const QString &arguments)
{
    append(LoggedCall{.time = LoggedCall::Clock::now(),
                      .method = &method,
                      .arguments = arguments,
                      .outcome = Outcome::Noted});
}

void CallLog::note(const QString &text)
{
    append(
        LoggedCall{.time = LoggedCall::Clock::now(), .arguments = text, .outcome = Outcome::Noted});
}

QDateTime CallLog::wallTime(LoggedCall::Clock::time_point time) const
{
    return m_startOnTheWall.addDuration(
        std::chrono::duration_cast<std::chrono::milliseconds>(time - m_start));
}

void CallLog::clear()
{
    m_begin = m_clearedEnd = end();
    m_calls.clear();
    m_textSize = 0;
    m_totals = {};
    Q_EMIT cleared();
}

void CallLog::takeReply(const QString &reply)
{
    // The errors of a long reply are at its end, and its fields need not be counted.
    const bool isLong = reply.size() > longestText;
    const QString line
        = isLong ? QString(u"::"_s + reply.last(longestText).section(u':', -3)) : reply;
    const QStringList fields = replyFields(line);
    if (m_waiting.empty())
        return; // nobody asked
    const qint64 serial = m_waiting.front();
    m_waiting.pop_front();
    qsizetype omitted = 0;
    if (fields.isEmpty())
        finish(serial, Outcome::Refused, shortened(reply, &omitted));
    else if (fields.at(ReplyErrorName).isEmpty())
        finish(serial, Outcome::Answered, shortened(fields.at(ReplyValue), &omitted));
    else
        finish(
            serial, Outcome::Refused,
            shortened(replyError(fields.at(ReplyErrorName), fields.at(ReplyErrorText)), &omitted));
}

void CallLog::loseWaitingCalls()
{
    for (const qint64 serial : std::exchange(m_waiting, {}))
        finish(serial, Outcome::Lost, {});
}

void CallLog::finish(qint64 serial, Outcome outcome, const QString &reply)
{
    if (serial >= m_clearedEnd) {
        m_totals.refused += outcome == Outcome::Refused;
        m_totals.lost += outcome == Outcome::Lost;
    }
    if (serial >= m_begin) {
        LoggedCall &call = m_calls[std::size_t(serial - m_begin)];
        call.latency = LoggedCall::Clock::now() - call.time;
        call.outcome = outcome;
        call.reply = reply;
        m_textSize += reply.size();
    }
    Q_EMIT finished(serial);
}

qint64 CallLog::callsPerSecond() const
{
    const auto begin = LoggedCall::Clock::now() - std::chrono::seconds(1);
    return m_calls.end() - std::ranges::upper_bound(m_calls, begin, {}, &LoggedCall::time);
}

CallLog::Latencies CallLog::latencies() const
{
    std::vector<LoggedCall::Clock::duration> latencies;
    latencies.reserve(m_calls.size());
    for (const LoggedCall &call : m_calls) {
        if (call.latency.count() > 0 && call.outcome != Outcome::Lost)
            latencies.push_back(call.latency);
    }
    if (latencies.empty())
        return {};
    const auto quantile = [&](std::size_t percent) {
        const auto place
            = latencies.begin() + std::ptrdiff_t((latencies.size() - 1) * percent / 100);
        std::ranges::nth_element(latencies, place);
        return *place;
    };
    return {.median = quantile(50), .percentile99 = quantile(99)};
}

} // namespace EmulationManagement::Internal
