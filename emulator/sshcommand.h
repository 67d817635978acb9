#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QObject>
#include <QString>

#include <functional>

namespace NimbraEmulator {

/// Answers the commands of SSH sessions. The SSH server starts this program for every command; it
/// calls runSshCommand(), which asks the running emulator and prints the answer.
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

/// Sends the command of this SSH session to \a socket, prints the answer and returns the command's
/// exit status.
[[nodiscard]] int runSshCommand(const QString &socket);

} // namespace NimbraEmulator
