#include "ssh/sshremoteprocessrunner.h"

#include <QProcess>

#include <utility>

using namespace Qt::StringLiterals;

namespace QSsh {

// Limits in bytes: a command with more output is ended, a longer error text is cut.
static constexpr qint64 maxOutputSize = 16 << 20;
static constexpr qsizetype maxErrorSize = 4096;
// Seconds of silence after which the client asks the server for an answer. The client gives up
// after three unanswered questions.
static constexpr int aliveInterval = 5;

// The client's own exit code when it could not log in or lost the connection.
static constexpr int clientFailure = 255;

// The client splits the values of these options at spaces and expands percent signs in them.
static QString fileNameOption(const QString &option, QString fileName)
{
    fileName.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).replace(u'%', u"%%"_s);
    return u"%1=\"%2\""_s.arg(option, fileName);
}

static QStringList clientArguments(const QString &command,
                                   const SshConnectionParameters &parameters)
{
    QStringList options{
        u"BatchMode=yes"_s,      u"ConnectTimeout=%1"_s.arg(parameters.timeout.count()),
        u"ForwardAgent=no"_s,    u"ForwardX11=no"_s,
        u"RequestTTY=no"_s,      u"ServerAliveInterval=%1"_s.arg(aliveInterval),
        u"IdentitiesOnly=yes"_s, u"IdentityAgent=none"_s,
        u"LogLevel=ERROR"_s,     u"StrictHostKeyChecking=accept-new"_s,
    };
    if (!parameters.privateKeyFile.isEmpty())
        options << fileNameOption(u"IdentityFile"_s, parameters.privateKeyFile);
    if (!parameters.knownHostsFile.isEmpty())
        options << fileNameOption(u"UserKnownHostsFile"_s, parameters.knownHostsFile);

    // Ignore the user's own configuration: it could send the connection elsewhere.
    QStringList arguments{u"-F"_s, u"none"_s};
    for (const QString &option : std::as_const(options))
        arguments << u"-o"_s << option;
    arguments << u"-p"_s << QString::number(parameters.port) << u"-l"_s << parameters.userName
              << u"--"_s << parameters.host << command;
    return arguments;
}

static QString failureOf(const QProcess &process, const QByteArray &errorText)
{
    if (process.error() == QProcess::FailedToStart || process.exitStatus() == QProcess::CrashExit)
        return process.errorString();
    if (process.exitCode() != clientFailure)
        return {};
    const QString text = QString::fromLocal8Bit(errorText).trimmed();
    return text.isEmpty() ? SshRemoteProcessRunner::tr("The SSH connection failed.") : text;
}

SshRemoteProcessRunner::SshRemoteProcessRunner(QObject *parent)
    : QObject(parent)
{}

SshRemoteProcessRunner::~SshRemoteProcessRunner()
{
    discardProcess();
}

void SshRemoteProcessRunner::run(const QString &command, const SshConnectionParameters &parameters)
{
    discardProcess();
    m_command = command;
    m_errorText.clear();
    auto *process = new QProcess(this);
    m_process = process;

    connect(process, &QProcess::readyReadStandardOutput, this, [process] {
        if (process->bytesAvailable() > maxOutputSize)
            process->kill();
    });
    connect(process, &QProcess::readyReadStandardError, this, [this, process] {
        m_errorText += process->readAllStandardError();
        m_errorText.truncate(maxErrorSize);
    });
    connect(process, &QProcess::finished, this,
            [this, process] { Q_EMIT processClosed(failureOf(*process, m_errorText)); });
    // Queued, because a start can fail before this function returns. Another run() may have
    // replaced the process by then.
    connect(
        process, &QProcess::errorOccurred, this,
        [this, process](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart && process == m_process)
                Q_EMIT processClosed(failureOf(*process, m_errorText));
        },
        Qt::QueuedConnection);

    process->setStandardInputFile(QProcess::nullDevice());
    process->start(u"ssh"_s, clientArguments(command, parameters));
}

QString SshRemoteProcessRunner::command() const
{
    return m_command;
}

QByteArray SshRemoteProcessRunner::readAllStandardOutput()
{
    return m_process ? m_process->readAllStandardOutput() : QByteArray();
}

// Deletes the process later: one of its signals may have led to this call.
void SshRemoteProcessRunner::discardProcess()
{
    QProcess *process = std::exchange(m_process, nullptr);
    if (!process)
        return;
    process->disconnect(this);
    process->kill();
    if (process->state() == QProcess::NotRunning)
        process->deleteLater();
    else
        connect(process, &QProcess::finished, process, &QObject::deleteLater);
}

} // namespace QSsh
