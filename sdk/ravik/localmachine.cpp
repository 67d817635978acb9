#include "localmachine.h"

#include <QDir>
#include <QNetworkProxy>
#include <QTcpServer>

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Ravik::Internal {

static constexpr auto stopTimeLimit = 3s;
static constexpr quint16 sshPort = 2222;
static constexpr quint16 hostSshPort = 2223;

static QString currentUserName()
{
    const passwd *user = getpwuid(getuid());
    return user ? QString::fromLocal8Bit(user->pw_name) : QString();
}

static bool isPortFree(quint16 port)
{
    QTcpServer server;
    server.setProxy(QNetworkProxy::NoProxy);
    return server.listen(QHostAddress::LocalHost, port);
}

static void post(const QObject *context, const VirtualMachine::Callback &callback, bool success)
{
    QTimer::singleShot(0ms, context, [callback, success] { callback(success); });
}

LocalMachine::LocalMachine(const EmulatorSettings &settings, const HostSettings &host,
                           QObject *parent)
    : VirtualMachine(parent)
    , m_settings(settings)
    , m_host(host)
    , m_key(host.sshKeyFile())
{
    connect(&m_key, &SshKeyPair::ready, this, &LocalMachine::launch);
    connect(&m_key, &SshKeyPair::failed, this, &LocalMachine::fail);

    connect(&m_process, &QProcess::started, this, &LocalMachine::handleStarted);
    connect(&m_process, &QProcess::finished, this, &LocalMachine::handleFinished);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            fail(tr("%1 could not be started: %2")
                     .arg(QDir::toNativeSeparators(m_process.program()), m_process.errorString()));
    });

    connect(&m_probe, &SshProbe::reachable, this, [this] { settle(Connected, true); });
    connect(&m_probe, &SshProbe::timedOut, this, [this] {
        fail(tr("%1 has started but does not answer.").arg(m_settings.name));
        stopProcess();
    });

    m_killTimer.setSingleShot(true);
    m_killTimer.setInterval(stopTimeLimit);
    connect(&m_killTimer, &QTimer::timeout, &m_process, &QProcess::kill);
}

LocalMachine::~LocalMachine()
{
    m_process.disconnect(this);
    const QSignalBlocker blocker(this);
    settle(Disconnected, false);
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(int(std::chrono::milliseconds(stopTimeLimit).count()))) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool LocalMachine::isOff(bool *runningHeadless, bool *startedOutside) const
{
    if (runningHeadless)
        *runningHeadless = !m_off && m_host.headless;
    if (startedOutside)
        *startedOutside = false;
    return m_off;
}

VirtualMachine::State LocalMachine::state() const
{
    return m_state;
}

QString LocalMachine::errorString() const
{
    return m_errorString;
}

bool LocalMachine::hasPortForwarding(unsigned short hostPort, QString *ruleName) const
{
    const QList<PortForwarding> rules = forwardings();
    const auto it = std::ranges::find(rules, hostPort, &PortForwarding::hostPort);
    if (it == rules.end())
        return false;
    if (ruleName)
        *ruleName = it->ruleName;
    return true;
}

void LocalMachine::addPortForwarding(const QString &ruleName, const QString &protocol,
                                     unsigned short hostPort, unsigned short emulatorPort,
                                     const QObject *context, Callback callback)
{
    const PortForwarding forwarding{ruleName, protocol, hostPort, emulatorPort};
    const bool accepted = m_off && m_state != Starting && forwarding.isValid()
                          && std::ranges::none_of(forwardings(), [&](const PortForwarding &other) {
                                 return forwarding.conflictsWith(other);
                             });
    if (accepted) {
        m_settings.forwardings.append(forwarding);
        Q_EMIT settingsChanged();
    }
    post(context, callback, accepted);
}

void LocalMachine::connectTo(ConnectOptions, const QObject *context, Callback callback)
{
    if (m_state == Connected) {
        post(context, callback, true);
        return;
    }
    m_waiting.append({context, std::move(callback)});
    // If the machine is being stopped, handleFinished() starts it again.
    if (m_off && m_state != Starting)
        start();
}

void LocalMachine::shutDown()
{
    m_key.cancel();
    m_probe.stop();
    if (m_process.state() != QProcess::NotRunning) {
        m_errorString.clear();
        settle(Disconnecting, false);
        stopProcess();
    } else if (m_state == Starting) {
        settle(Disconnected, false);
    }
}

QSsh::SshConnectionParameters LocalMachine::sshParameters() const
{
    return {.host = u"127.0.0.1"_s,
            .port = hostSshPort,
            .userName = currentUserName(),
            .privateKeyFile = m_key.privateKeyFile(),
            .knownHostsFile = dataFile(u"known_hosts"_s)};
}

const EmulatorSettings &LocalMachine::settings() const
{
    return m_settings;
}

void LocalMachine::setDeviceModel(const QString &name)
{
    m_settings.deviceModel = name;
    Q_EMIT settingsChanged();
}

void LocalMachine::start()
{
    m_errorString.clear();
    setState(Starting);
    m_key.ensure();
}

void LocalMachine::launch()
{
    m_killTimer.stop();
    // Another emulator behind this port would be mistaken for this machine.
    if (!isPortFree(hostSshPort)) {
        fail(tr("Port %1, which leads to the emulator, is used by another program.")
                 .arg(hostSshPort));
        return;
    }
    if (!QDir().mkpath(m_host.dataFolder(m_settings))) {
        fail(tr("The folder %1 could not be made.")
                 .arg(QDir::toNativeSeparators(m_host.dataFolder(m_settings))));
        return;
    }
    m_process.setStandardOutputFile(dataFile(u"journal.jsonl"_s), QIODevice::Append);
    m_process.setStandardErrorFile(dataFile(u"emulator.log"_s), QIODevice::Append);
    m_process.start(m_host.emulatorProgram(), arguments());
}

void LocalMachine::fail(const QString &reason)
{
    m_errorString = reason;
    settle(Error, false);
}

// The emulator stops at the end of its standard input.
void LocalMachine::stopProcess()
{
    m_process.closeWriteChannel();
    if (!m_killTimer.isActive())
        m_killTimer.start();
}

void LocalMachine::handleStarted()
{
    m_off = false;
    Q_EMIT virtualMachineOffChanged(false);
    if (m_state != Starting)
        return;
    m_probe.start(hostSshPort);
    setState(Connecting);
}

void LocalMachine::handleFinished()
{
    m_killTimer.stop();
    m_probe.stop();
    m_off = true;
    switch (m_state) {
    case Connecting:
        fail(tr("%1 ended while it started; see %2.")
                 .arg(m_settings.name, QDir::toNativeSeparators(dataFile(u"emulator.log"_s))));
        break;
    case Connected:
        m_errorString
            = tr("%1 ended by itself; see %2.")
                  .arg(m_settings.name, QDir::toNativeSeparators(dataFile(u"emulator.log"_s)));
        setState(Disconnected);
        break;
    case Disconnecting:
        setState(Disconnected);
        break;
    default:
        break;
    }
    Q_EMIT virtualMachineOffChanged(true);
    // connectTo() was called while the machine stopped, so start it again.
    if (!m_waiting.isEmpty() && m_state != Starting)
        start();
}

void LocalMachine::setState(State state)
{
    if (m_state == state)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}

// Ends an attempt to connect. A connectTo() in a slot of stateChanged() begins a new attempt.
void LocalMachine::settle(State state, bool success)
{
    const QList<Waiting> waiting = std::exchange(m_waiting, {});
    setState(state);
    for (const auto &[context, callback] : waiting) {
        if (context)
            post(context, callback, success);
    }
}

QString LocalMachine::dataFile(const QString &fileName) const
{
    return m_host.dataFolder(m_settings) + u'/' + fileName;
}

// The rules of the settings, and the rule for SSH, which every machine has.
QList<PortForwarding> LocalMachine::forwardings() const
{
    return QList<PortForwarding>{{u"ssh"_s, u"tcp"_s, hostSshPort, sshPort}}
           + m_settings.forwardings;
}

QStringList LocalMachine::arguments() const
{
    QStringList arguments{u"--data"_s,           m_host.dataFolder(m_settings),
                          u"--name"_s,           m_settings.name,
                          u"--device-model"_s,   m_settings.deviceModel,
                          u"--address"_s,        u"127.0.0.2"_s,
                          u"--ssh-port"_s,       QString::number(sshPort),
                          u"--authorized-key"_s, m_key.publicKeyFile()};
    const QList<PortForwarding> rules = forwardings();
    for (const PortForwarding &forwarding : rules)
        arguments << u"--forward"_s << forwarding.toString();
    for (const QString &package : m_settings.packages)
        arguments << u"--package"_s << package;
    for (const QString &package : m_settings.withoutPackages)
        arguments << u"--without-package"_s << package;
    if (m_host.headless)
        arguments << u"--headless"_s;
    return arguments << u"--stop-with-stdin"_s;
}

} // namespace Ravik::Internal
