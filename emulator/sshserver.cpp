#include "sshserver.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cstdio>

#include <pwd.h>
#include <unistd.h>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

// The daemon's own checks of file owners and connection rates are off: the loopback address and the
// key restrict more, and the checks would lock out clients that try until the emulator is up.
static constexpr auto configuration = R"(ListenAddress %1
Port %2
HostKey %3
AuthorizedKeysFile %4
AllowUsers %5
ForceCommand %6
SetEnv LC_ALL=C.UTF-8
AuthenticationMethods publickey
PermitRootLogin prohibit-password
PasswordAuthentication no
KbdInteractiveAuthentication no
UsePAM no
StrictModes no
PidFile none
PermitTTY no
PermitUserRC no
DisableForwarding yes
PerSourcePenalties no
MaxStartups 100
UseDNS no
)"_L1;

// Quotes a text as one word of the daemon's configuration.
static QString configurationWord(QString text)
{
    return u'"' + text.replace(u'\\', "\\\\"_L1).replace(u'"', "\\\""_L1) + u'"';
}

// Quotes a text as one word of a shell's command line.
static QString shellWord(QString text)
{
    return u'\'' + text.replace(u'\'', "'\\''"_L1) + u'\'';
}

static QString systemProgram(const QString &name)
{
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? QStandardPaths::findExecutable(
                                 name, {u"/usr/sbin"_s, u"/usr/local/sbin"_s, u"/sbin"_s})
                           : found;
}

static bool makeHostKey(const QString &file)
{
    if (QFile::exists(file))
        return true;
    ChildProcess keygen;
    keygen.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    keygen.start(u"ssh-keygen"_s,
                 {u"-q"_s, u"-t"_s, u"ed25519"_s, u"-N"_s, QString(), u"-f"_s, file});
    return keygen.waitForFinished() && QFile::exists(file);
}

SshServer::SshServer(SshCommandServer::Shell shell, QObject *parent)
    : QObject(parent)
    , m_commands(std::move(shell))
{}

bool SshServer::writeConfiguration(const Options &options, const QString &hostKey, QString *error)
{
    const passwd *user = ::getpwuid(::getuid());
    if (!user) {
        *error = u"The SSH server needs a user that the system knows by name."_s;
        return false;
    }
    const QString commandSocket = m_folder.filePath(u"commands"_s);
    const QString command = shellWord(QCoreApplication::applicationFilePath()) + " --answer-ssh "_L1
                            + shellWord(commandSocket);
    // the daemon expands "%" tokens in this path, not in the others
    const QString keys
        = options.authorizedKey.isEmpty()
              ? u"none"_s
              : configurationWord(QString(options.authorizedKey).replace(u'%', "%%"_L1));
    QFile file(m_folder.filePath(u"sshd.conf"_s));
    if (!m_folder.isValid() || !m_commands.listen(commandSocket) || !file.open(QIODevice::WriteOnly)
        || file.write(configuration
                          .arg(options.address.toString(), QString::number(options.sshPort),
                               configurationWord(hostKey), keys,
                               QString::fromLocal8Bit(user->pw_name), command)
                          .toUtf8())
               < 0) {
        *error = u"The SSH server's folder %1 cannot be written."_s.arg(m_folder.path());
        return false;
    }
    return true;
}

bool SshServer::start(const Options &options, QString *error)
{
    const QString program = systemProgram(u"sshd"_s); // sshd requires its absolute path
    if (program.isEmpty()) {
        *error = u"The program sshd was not found."_s;
        return false;
    }
    const QString hostKey = QDir(options.data).filePath(u"ssh_host_ed25519_key"_s);
    if (!makeHostKey(hostKey)) {
        *error = u"The SSH server's key %1 cannot be made."_s.arg(hostKey);
        return false;
    }
    if (!writeConfiguration(options, hostKey, error))
        return false;
    if (::geteuid() == 0) // as root, sshd needs this folder
        QDir().mkpath(u"/run/sshd"_s);

    m_daemon.start(program, {u"-D"_s, u"-e"_s, u"-f"_s, m_folder.filePath(u"sshd.conf"_s)});
    if (m_daemon.waitForOutput(QProcess::StandardError, "Server listening on").isEmpty()) {
        const QByteArray reason = m_daemon.readAllStandardError();
        *error
            = u"The SSH server does not listen on %1 port %2: %3"_s.arg(options.address.toString())
                  .arg(options.sshPort)
                  .arg(QString::fromLocal8Bit(reason.first(reason.indexOf('\n') + 1)).trimmed());
        return false;
    }
    connect(&m_daemon, &ChildProcess::died, this, &SshServer::died);
    connect(&m_daemon, &QProcess::readyReadStandardError, this, [this] {
        const QByteArray lines = m_daemon.readAllStandardError();
        std::fwrite(lines.constData(), 1, static_cast<size_t>(lines.size()), stderr);
    });
    return true;
}

} // namespace NimbraEmulator
