#pragma once

#include "control.h"
#include "journalwriter.h"
#include "locationservice.h"
#include "options.h"
#include "packagelist.h"
#include "relay.h"
#include "sensorservice.h"
#include "sshserver.h"
#include "systembus.h"
#include "videoreceiver.h"

#include <memory>

namespace NimbraEmulator {

/// The whole emulator: makes its parts, starts them in order and ends them in reverse order. The
/// journal begins with the constructor and ends with the destructor.
///
/// A call from the host takes this way: TcpForwarder, Relay, RelayClient, SystemBus, and then the
/// slot of SensorService or LocationService that has the name of the called method.
class Emulator : public QObject
{
    Q_OBJECT

public:
    explicit Emulator(const Options &options, QObject *parent = nullptr);
    ~Emulator() override;

    /// Starts all parts and returns when they are ready. On failure puts a sentence into \a error.
    [[nodiscard]] bool start(QString *error);

    [[nodiscard]] const SensorService &sensors() const { return m_sensors; }
    [[nodiscard]] const LocationService &location() const { return m_location; }
    [[nodiscard]] const VideoReceiver &video() const { return m_video; }

Q_SIGNALS:
    /// A part that the emulator needs has ended. \a error is one sentence.
    void failed(const QString &error);

private:
    [[nodiscard]] bool startServices(QString *error);
    [[nodiscard]] bool startRelay(QString *error);
    void startControl();
    void startForwarding(const Forwarding &forwarding);
    [[nodiscard]] SshCommandServer::Answer answerCommand(const QString &command);

    Options m_options;
    JournalWriter m_journal;
    PackageList m_packages;
    SensorService m_sensors;
    LocationService m_location;
    VideoReceiver m_video;
    SystemBus m_bus;
    SshServer m_sshServer;
    std::unique_ptr<Relay> m_relay;
    std::unique_ptr<Control> m_control;
};

} // namespace NimbraEmulator
