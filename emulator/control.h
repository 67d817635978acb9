#pragma once

#include <QDBusConnection>
#include <QLocalServer>
#include <QObject>

namespace NimbraEmulator {

class JournalWriter;
class PackageList;
class Relay;

/// Makes faults on request: reads commands from a local socket, one a line, and answers each with
/// the line "ok" or "error: …".
///
///     relay close                    drop the relay's connections and stop listening
///     relay open                     listen again
///     relay delay MILLISECONDS       delay every reply by this time
///     relay answer TEXT              send TEXT instead of the next reply
///     relay repeat TIMES TEXT        send TEXT, repeated TIMES times, instead of the next reply
///     fail METHOD ERRORNAME TEXT     answer METHOD with this error instead of calling it
///     fail METHOD                    call METHOD again
///     service with|without NAME      put a service on the D-Bus or take it off
///     package with|without NAME      add or remove a package
///     freeze MILLISECONDS            block for this time: no part answers, SSH included
///     kill                           die at once, without any clean-up
class Control : public QObject
{
    Q_OBJECT

public:
    /// \a services is the bus connection on which the services are registered.
    Control(Relay &relay, const QDBusConnection &services, PackageList &packages,
            JournalWriter &journal, QObject *parent = nullptr);

    /// Listens on \a socket and replaces a socket that an earlier run left there.
    [[nodiscard]] bool listen(const QString &socket);
    [[nodiscard]] QString errorString() const { return m_server.errorString(); }

private:
    void acceptClients();
    [[nodiscard]] QString execute(const QString &command);
    [[nodiscard]] QString executeRelay(const QString &action, const QString &text);
    [[nodiscard]] QString executeFail(const QString &method, const QString &error);
    [[nodiscard]] QString executeRepeat(const QString &times, const QString &text);
    [[nodiscard]] QString executeService(const QString &action, const QString &name);
    [[nodiscard]] QString executePackage(const QString &action, const QString &name);

    Relay &m_relay;
    QDBusConnection m_services;
    PackageList &m_packages;
    JournalWriter &m_journal;
    QLocalServer m_server;
};

} // namespace NimbraEmulator
