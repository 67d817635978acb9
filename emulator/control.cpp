#include "control.h"

#include "journalwriter.h"
#include "packagelist.h"
#include "relay.h"

#include <QDBusError>
#include <QLocalSocket>
#include <QThread>

#include <csignal>
#include <optional>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

static QString unknownCommand()
{
    return u"unknown command"_s;
}

static std::optional<std::chrono::milliseconds> milliseconds(const QString &text)
{
    bool ok = false;
    const uint number = text.toUInt(&ok);
    return ok ? std::optional(std::chrono::milliseconds(number)) : std::nullopt;
}

static QString noMilliseconds()
{
    return u"a number of milliseconds is missing"_s;
}

Control::Control(Relay &relay, const QDBusConnection &services, PackageList &packages,
                 JournalWriter &journal, QObject *parent)
    : QObject(parent)
    , m_relay(relay)
    , m_services(services)
    , m_packages(packages)
    , m_journal(journal)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &Control::acceptClients);
}

bool Control::listen(const QString &socket)
{
    QLocalServer::removeServer(socket);
    return m_server.listen(socket);
}

void Control::acceptClients()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            while (socket->canReadLine()) {
                const QString command = QString::fromUtf8(socket->readLine()).chopped(1);
                m_journal.write("fault"_L1, {{u"request"_s, command}});
                const QString error = execute(command);
                const QString answer = error.isEmpty() ? u"ok\n"_s : u"error: %1\n"_s.arg(error);
                socket->write(answer.toUtf8());
            }
        });
    }
}

// Each command returns an error message, or an empty text on success.

QString Control::execute(const QString &command)
{
    const QString verb = command.section(u' ', 0, 0);
    const QString object = command.section(u' ', 1, 1);
    const QString rest = command.section(u' ', 2);
    if (verb == "relay"_L1)
        return executeRelay(object, rest);
    if (verb == "fail"_L1)
        return executeFail(object, rest);
    if (verb == "package"_L1)
        return executePackage(object, rest);
    if (verb == "service"_L1)
        return executeService(object, rest);
    if (verb == "freeze"_L1) {
        const auto duration = milliseconds(object);
        if (duration)
            QThread::sleep(*duration);
        return duration ? QString() : noMilliseconds();
    }
    if (command == "kill"_L1)
        std::raise(SIGKILL);
    return unknownCommand();
}

QString Control::executeRelay(const QString &action, const QString &text)
{
    QString error;
    if (action == "open"_L1) {
        // `error` tells the result
        static_cast<void>(m_relay.open(&error));
    } else if (action == "close"_L1) {
        m_relay.close();
    } else if (action == "answer"_L1) {
        m_relay.faults().answer = text;
    } else if (action == "repeat"_L1) {
        error = executeRepeat(text.section(u' ', 0, 0), text.section(u' ', 1));
    } else if (action == "delay"_L1) {
        if (const auto delay = milliseconds(text))
            m_relay.faults().delay = *delay;
        else
            error = noMilliseconds();
    } else {
        error = unknownCommand();
    }
    return error;
}

QString Control::executeRepeat(const QString &times, const QString &text)
{
    bool ok = false;
    const uint count = times.toUInt(&ok);
    if (!ok)
        return u"the number of times is missing"_s;
    m_relay.faults().answer = text.repeated(count);
    return {};
}

QString Control::executeService(const QString &action, const QString &name)
{
    bool ok = false;
    if (action == "with"_L1)
        ok = m_services.registerService(name);
    else if (action == "without"_L1)
        ok = m_services.unregisterService(name);
    else
        return unknownCommand();
    return ok ? QString() : u"the bus refuses: %1"_s.arg(m_services.lastError().message());
}

QString Control::executeFail(const QString &method, const QString &error)
{
    if (method.isEmpty())
        return u"the method is missing"_s;
    if (error.isEmpty())
        m_relay.faults().failures.remove(method);
    else
        m_relay.faults().failures.insert(method,
                                         {error.section(u' ', 0, 0), error.section(u' ', 1)});
    return {};
}

QString Control::executePackage(const QString &action, const QString &name)
{
    if (name.isEmpty())
        return u"the package's name is missing"_s;
    if (action == "with"_L1)
        m_packages.add(name);
    else if (action != "without"_L1)
        return unknownCommand();
    else if (!m_packages.remove(name))
        return u"there is no package %1"_s.arg(name);
    return {};
}

} // namespace NimbraEmulator
