#include "emulator.h"

#include "tcpforwarder.h"
#include "udpforwarder.h"

#include <QDBusError>
#include <QDir>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

// Qt handles calls within one connection without the bus, so the relay and the services have a
// connection each.
static constexpr auto serviceConnection = "services"_L1;
static constexpr auto relayConnection = "relay"_L1;

Emulator::Emulator(const Options &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_packages(options.packages)
    , m_video(m_journal)
    , m_sshServer([this](const QString &command) { return answerCommand(command); })
{
    for (const QString &name : options.withoutPackages)
        m_packages.remove(name);
    connect(&m_bus, &SystemBus::died, this,
            [this] { Q_EMIT failed(u"The D-Bus daemon ended."_s); });
    connect(&m_sshServer, &SshServer::died, this,
            [this] { Q_EMIT failed(u"The SSH server ended."_s); });
    m_journal.write("started"_L1, {{u"name"_s, options.name},
                                   {u"deviceModel"_s, options.deviceModel},
                                   {u"address"_s, options.address.toString()}});
}

Emulator::~Emulator()
{
    m_control.reset();
    m_relay.reset();
    QDBusConnection::disconnectFromBus(relayConnection);
    QDBusConnection::disconnectFromBus(serviceConnection);
    m_journal.write("stopped"_L1);
}

bool Emulator::start(QString *error)
{
    if (!QDir().mkpath(m_options.data)) {
        *error = u"The folder %1 cannot be made."_s.arg(m_options.data);
        return false;
    }
    if (!startServices(error) || !startRelay(error) || !m_video.listen(m_options.address, error)
        || !m_sshServer.start(m_options, error))
        return false;
    startControl();
    for (const Forwarding &forwarding : std::as_const(m_options.forwardings))
        startForwarding(forwarding);
    m_journal.write("ready"_L1);
    return true;
}

bool Emulator::startServices(QString *error)
{
    if (!m_bus.start(error))
        return false;
    QDBusConnection bus = m_bus.connection(serviceConnection);
    const bool ok = bus.registerObject(SensorService::objectPath, SensorService::serviceName,
                                       &m_sensors, QDBusConnection::ExportAllSlots)
                    && bus.registerObject(LocationService::objectPath, LocationService::serviceName,
                                          &m_location, QDBusConnection::ExportAllSlots)
                    && bus.registerService(SensorService::serviceName)
                    && bus.registerService(LocationService::serviceName);
    if (!ok)
        *error = u"The services cannot go onto the D-Bus: %1."_s.arg(bus.lastError().message());
    return ok;
}

bool Emulator::startRelay(QString *error)
{
    const QDBusConnection bus = m_bus.connection(relayConnection);
    if (!bus.isConnected()) {
        *error = u"The relay cannot reach the D-Bus: %1."_s.arg(bus.lastError().message());
        return false;
    }
    m_relay = std::make_unique<Relay>(m_options.address, bus, m_journal);
    return m_relay->open(error);
}

void Emulator::startControl()
{
    m_control = std::make_unique<Control>(*m_relay, QDBusConnection(serviceConnection), m_packages,
                                          m_journal);
    if (m_control->listen(QDir(m_options.data).filePath(u"control"_s)))
        return;
    // The path may exceed a socket's limit of 108 bytes. The emulator works without this socket.
    m_journal.write("fault"_L1,
                    {{u"request"_s, u"control is off: %1"_s.arg(m_control->errorString())}});
}

void Emulator::startForwarding(const Forwarding &forwarding)
{
    const bool isTcp = forwarding.protocol == Forwarding::Protocol::Tcp;
    QJsonObject details{{u"rule"_s, forwarding.rule},
                        {u"protocol"_s, isTcp ? u"tcp"_s : u"udp"_s},
                        {u"hostPort"_s, forwarding.hostPort},
                        {u"port"_s, forwarding.port}};
    const auto start = [&](auto *forwarder) {
        if (!forwarder->listen(forwarding.hostPort))
            details.insert("error"_L1, forwarder->errorString());
    };
    if (isTcp)
        start(new TcpForwarder(m_options.address, forwarding.port, this));
    else
        start(new UdpForwarder(m_options.address, forwarding.port, this));
    m_journal.write("forwarding"_L1, details);
}

SshCommandServer::Answer Emulator::answerCommand(const QString &command)
{
    m_journal.write("ssh"_L1, {{u"command"_s, command}});
    if (command == "rpm -qa"_L1)
        return {.output = m_packages.text().toUtf8(), .error = {}, .exitStatus = 0};
    constexpr int commandNotFound = 127; // as in shells
    return {.output = {},
            .error = "The emulator answers only the command rpm -qa.\n",
            .exitStatus = commandNotFound};
}

} // namespace NimbraEmulator
