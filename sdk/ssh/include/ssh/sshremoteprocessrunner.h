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

    /// Runs \a command in the remote user's shell. An earlier command that still runs is ended
    /// without a signal. processClosed() is always emitted later, from the event loop, even if the
    /// command writes too much or the server falls silent.
    void run(const QString &command, const SshConnectionParameters &parameters);

    /// The command of the last run().
    [[nodiscard]] QString command() const;

    /// The output of the last run()'s command that was not read yet.
    QByteArray readAllStandardOutput();

Q_SIGNALS:
    /// The remote process has ended. \a error is empty when it ran to its end, whatever its exit
    /// code; otherwise it says what stopped the process.
    void processClosed(const QString &error);

private:
    void discardProcess();

    QString m_command;
    QByteArray m_errorText; // only the beginning is kept
    QProcess *m_process = nullptr; // of the last run(), a child of this object
};

} // namespace QSsh
