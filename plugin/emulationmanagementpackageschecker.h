#pragma once

#include <ssh/sshconnectionparameters.h>
#include <ssh/sshremoteprocessrunner.h>

#include <QHash>
#include <QObject>
#include <QString>

/*!
 * Finds out whether the emulator carries the packages that the plugin talks to.
 *
 * One SSH command lists the installed packages. A package counts as found if its name occurs
 * anywhere in the output. If the emulator cannot be reached, all packages count as missing.
 */
class EmulationManagementPackagesChecker : public QObject
{
    Q_OBJECT

public:
    static const QString sensorfwPluginsPackageName;
    static const QString rdbusinvokerPackageName;
    static const QString geoclueEmulatorPackageName;
    static const QString gtsreamerEmulatorPackageName;
    static const QString searchPackagesCommand;

    explicit EmulationManagementPackagesChecker(QObject *parent = nullptr);

    /// Starts a check, which ends in checkFinished(). A check that is still running is replaced.
    void checkPackages(const QSsh::SshConnectionParameters &parameters);

Q_SIGNALS:
    /// Both texts are empty if all packages were found; otherwise \a detailedText lists the missing
    /// ones.
    void checkFinished(const QString &message, const QString &detailedText);

private:
    void handleSshProcessFinished(const QString &error);

    QHash<QString, bool> m_packages;
    QSsh::SshRemoteProcessRunner m_runner;
    QSsh::SshConnectionParameters m_parameters;
};
