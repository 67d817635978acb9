#include "emulationmanagementpackageschecker.h"

using namespace Qt::StringLiterals;

const QString EmulationManagementPackagesChecker::sensorfwPluginsPackageName
    = u"sensorfw-qt5-emulator-plugins"_s;
const QString EmulationManagementPackagesChecker::rdbusinvokerPackageName
    = u"remote-dbus-invoker"_s;
const QString EmulationManagementPackagesChecker::geoclueEmulatorPackageName
    = u"geoclue-emulator"_s;
const QString EmulationManagementPackagesChecker::gtsreamerEmulatorPackageName
    = u"gstreamer-emulator"_s;
const QString EmulationManagementPackagesChecker::searchPackagesCommand = u"rpm -qa"_s;

EmulationManagementPackagesChecker::EmulationManagementPackagesChecker(QObject *parent)
    : QObject(parent)
{
    connect(&m_runner, &QSsh::SshRemoteProcessRunner::processClosed, this,
            &EmulationManagementPackagesChecker::handleSshProcessFinished);
}

void EmulationManagementPackagesChecker::checkPackages(
    const QSsh::SshConnectionParameters &parameters)
{
    m_parameters = parameters;
    m_packages = {{sensorfwPluginsPackageName, false},
                  {rdbusinvokerPackageName, false},
                  {geoclueEmulatorPackageName, false},
                  {gtsreamerEmulatorPackageName, false}};
    m_runner.run(searchPackagesCommand, m_parameters);
}

void EmulationManagementPackagesChecker::handleSshProcessFinished(const QString &error)
{
    Q_UNUSED(error) // without an answer, all packages count as missing
    if (!m_runner.command().contains(searchPackagesCommand))
        return;

    const QString installed = QString::fromUtf8(m_runner.readAllStandardOutput());
    QString missing;
    for (auto package = m_packages.begin(); package != m_packages.end(); ++package) {
        package.value() = installed.contains(package.key());
        if (!package.value())
            missing += package.key() + u'\n';
    }
    if (missing.isEmpty())
        Q_EMIT checkFinished({}, {});
    else
        Q_EMIT checkFinished(tr("Necessary packages not found on emulator!"),
                             tr("Packages is not installed: \n") + missing);
}
