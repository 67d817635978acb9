#pragma once

#include "childprocess.h"
#include "options.h"
#include "sshcommand.h"

#include <QTemporaryDir>

namespace NimbraEmulator {

/// The emulator's SSH server: an OpenSSH daemon that accepts one key for the user who runs the
/// emulator, and answers commands instead of running them.
class SshServer : public QObject
{
    Q_OBJECT

public:
    explicit SshServer(SshCommandServer::Shell shell, QObject *parent = nullptr);

    /// Starts the daemon and returns when it listens. The first start makes the host key in the
    /// data folder. On failure puts one sentence into \a error.
    [[nodiscard]] bool start(const Options &options, QString *error);

Q_SIGNALS:
    void died();

private:
    [[nodiscard]] bool writeConfiguration(const Options &options, const QString &hostKey,
                                          QString *error);

    QTemporaryDir m_folder;
    SshCommandServer m_commands;
    ChildProcess m_daemon;
};

} // namespace NimbraEmulator
