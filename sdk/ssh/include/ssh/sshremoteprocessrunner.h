#pragma once

#include "ssh_global.h"
#include "sshconnectionparameters.h"

#include <QByteArray>
#include <QObject>

QT_BEGIN_NAMESPACE
class QProcess;
QT_END_NAMESPACE

namespace QSsh {

/// Runs one command at a time on a remote machine, through the OpenSSH client.
class QSSH_EXPORT SshRemoteProcessRunner : public QObject
{
    Q_OBJECT

public:
    explicit SshRemoteProcessRunner(QObject *parent = nullptr);
    ~SshRemoteProcessRunner() override;

    /// Runs \a command in the remote user's shell. A command that still runs is replaced: nothing
    /// more is heard of it. processClosed() always comes later, from the event loop. A command that
    /// writes without end, or a server that falls silent, is given up.
    void run(const QString &command, const SshConnectionParameters &parameters);

    /// The command of the last run().
    [[nodiscard]] QString command() const;

    /// What the command of the last run() has written and was not read yet.
    QByteArray readAllStandardOutput();

Q_SIGNALS:
    /// The remote process is over. \a error is empty when it ended normally, whatever its exit
    /// code; otherwise it says what kept it from running to its end.
    void processClosed(const QString &error);

private:
    void discardProcess();

    QString m_command;
    QByteArray m_errorText; // its beginning
    QProcess *m_process = nullptr; // a child; the one of the last run()
};

} // namespace QSsh
