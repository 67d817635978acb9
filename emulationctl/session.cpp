#include "session.h"

#include "output.h"

#include <link/methodarguments.h>

#include <QJsonArray>
#include <QJsonObject>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

namespace EmulationCtl {

using Outcome = LoggedCall::Outcome;

static double millisecondsOf(LoggedCall::Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

static QString seconds(std::chrono::milliseconds time)
{
    return QString::number(std::chrono::duration<double>(time).count());
}

static QString nameOf(const LoggedCall &call)
{
    return call.method->service->name + u' ' + call.method->name;
}

static QJsonObject toJson(const LoggedCall &call)
{
    QJsonObject object{{u"service"_s, QString(call.method->service->name)},
                       {u"method"_s, QString(call.method->name)},
                       {u"latency"_s, millisecondsOf(call.latency)}};
    if (call.omitted == 0)
        object.insert("arguments"_L1, MethodArguments::toJson(*call.method, call.arguments));
    if (call.outcome == Outcome::Refused)
        object.insert("error"_L1, call.reply);
    else if (!call.method->result.isEmpty())
        object.insert("result"_L1, call.reply);
    return object;
}

static QString describe(const LoggedCall &call)
{
    const QString arguments = call.omitted > 0
                                  ? u"(%1 characters)"_s.arg(call.arguments.size() + call.omitted)
                                  : MethodArguments::description(*call.method, call.arguments);
    const QString outcome = call.outcome == Outcome::Refused ? u"refused"_s : u"answered"_s;
    return u"%1 %2: %3, %4 ms"_s.arg(nameOf(call), arguments, outcome)
        .arg(millisecondsOf(call.latency), 0, 'f', 2);
}

Session::Session(const GeneralOptions &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_log(&m_link)
{
    m_timeout.setSingleShot(true);
    connect(&m_timeout, &QTimer::timeout, this, &Session::handleTimeout);
    connect(&m_log, &CallLog::added, this, [this] {
        if (m_log.waiting() == 1)
            m_timeout.start(m_options.timeout);
    });
    connect(&m_log, &CallLog::finished, this, &Session::handleFinished);
    connect(&m_link, &RemoteDBusInvokerService::webSocketConnected, this, [this] {
        m_connected = true;
        m_timeout.stop();
        Q_EMIT connected();
    });
    connect(&m_link, &RemoteDBusInvokerService::connectionLost, this, [this] {
        complain(u"The emulator has closed the connection."_s);
        abort(NoLink);
    });
}

void Session::open()
{
    m_link.setPort(m_options.port);
    m_timeout.start(m_options.timeout);
    m_link.connectToEmulator();
}

void Session::call(const ServiceMethod &method, const QString &arguments)
{
    m_link.sendRequest(requestAddress(*method.service) + method.name + u' ' + arguments);
}

void Session::close()
{
    m_closing = true;
    endIfAnswered();
}

void Session::abort(ExitStatus status)
{
    if (m_ended)
        return;
    m_ended = true;
    Q_EMIT ended(status);
}

void Session::endIfAnswered()
{
    if (m_closing && m_log.waiting() == 0)
        abort(m_connected ? m_status : NoLink);
}

void Session::handleFinished(qint64 serial)
{
    if (m_log.waiting() > 0)
        m_timeout.start(m_options.timeout);
    else
        m_timeout.stop();
    if (serial < m_log.begin())
        return;
    const LoggedCall &call = m_log.at(serial);
    if (call.outcome == Outcome::Lost || m_ended)
        return;
    if (m_options.verbose)
        note(describe(call));
    if (m_options.json && !m_quiet)
        print(toJson(call));
    if (call.outcome == Outcome::Refused) {
        complain(u"%1: %2"_s.arg(nameOf(call), call.reply));
        m_status = Refused;
    }
    Q_EMIT answered(call);
    endIfAnswered();
}

void Session::handleTimeout()
{
    const QString time = seconds(m_options.timeout);
    complain(m_connected ? u"The emulator has not answered for %1 s."_s.arg(time)
                         : u"There is no emulator on port %1 of this host: waited %2 s."_s
                               .arg(m_options.port)
                               .arg(time));
    abort(NoLink);
}

} // namespace EmulationCtl
