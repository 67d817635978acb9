#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QObject>
#include <QString>

#include <functional>

namespace NimbraEmulator {

/// Carries the commands of SSH sessions into the emulator. The SSH server runs this same program,
/// as runSshCommand(), for every command; that asks the emulator, whose answer it prints.
class SshCommandServer : public QObject
{
    Q_OBJECT

public:
    struct Answer
    {
        QByteArray output;
        QByteArray error;
        int exitStatus = 0;
    };
    using Shell = std::function<Answer(const QString &command)>;

    explicit SshCommandServer(Shell shell, QObject *parent = nullptr);

    [[nodiscard]] bool listen(const QString &socket) { return m_server.listen(socket); }

private:
    void acceptCommand();

    Shell m_shell;
    QLocalServer m_server;
};

/// Has the command of this SSH session answered at \a socket and prints the answer; returns the
/// command's exit status.
[[nodiscard]] int runSshCommand(const QString &socket);

} // namespace NimbraEmulator
