#include "sshkeypair.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace Ravik::Internal {

SshKeyPair::SshKeyPair(const QString &privateKeyFile)
    : m_privateKeyFile(privateKeyFile)
{
    m_generator.setStandardInputFile(QProcess::nullDevice());
    connect(&m_generator, &QProcess::finished, this, &SshKeyPair::check);
    connect(&m_generator, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            check();
    });
}

SshKeyPair::~SshKeyPair()
{
    cancel();
}

QString SshKeyPair::privateKeyFile() const
{
    return m_privateKeyFile;
}

QString SshKeyPair::publicKeyFile() const
{
    return m_privateKeyFile + u".pub"_s;
}

void SshKeyPair::ensure()
{
    if (exists()) {
        Q_EMIT ready();
        return;
    }
    // A private key without its public key is useless. ssh-keygen would ask before it replaces it.
    QFile::remove(privateKeyFile());
    QDir().mkpath(QFileInfo(privateKeyFile()).path());
    m_generator.start(u"ssh-keygen"_s, {u"-q"_s, u"-t"_s, u"ed25519"_s, u"-N"_s, QString(), u"-C"_s,
                                        u"emulator"_s, u"-f"_s, privateKeyFile()});
}

void SshKeyPair::cancel()
{
    const QSignalBlocker blocker(m_generator);
    m_generator.kill();
    m_generator.waitForFinished();
}

bool SshKeyPair::exists() const
{
    return QFile::exists(privateKeyFile()) && QFile::exists(publicKeyFile());
}

void SshKeyPair::check()
{
    if (exists()) {
        Q_EMIT ready();
        return;
    }
    const QString text = QString::fromLocal8Bit(m_generator.readAllStandardError()).trimmed();
    Q_EMIT failed(tr("The SSH key %1 could not be made: %2")
                      .arg(QDir::toNativeSeparators(privateKeyFile()),
                           text.isEmpty() ? m_generator.errorString() : text));
}

} // namespace Ravik::Internal
