#pragma once

#include <hostsdk.h>

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace Ravik {
class VirtualMachine;
}

namespace TestSupport {

/// An SDK in a temporary folder. Its first emulator runs the project's program without a window.
class TemporarySdk
{
public:
    /// \a settings are lines of the SDK's settings file after its section "General".
    explicit TemporarySdk(const QByteArray &settings = {});

    /// Ends a running emulator and reads the settings file again, as a restart of the IDE does.
    void reopen();

    [[nodiscard]] Ravik::HostSdk &sdk() { return *m_sdk; }
    [[nodiscard]] Ravik::VirtualMachine &machine();

    /// Starts the emulator and waits until it can be reached.
    [[nodiscard]] bool start();
    [[nodiscard]] bool addPortForwarding(const QString &rule, const QString &protocol,
                                         unsigned short hostPort, unsigned short emulatorPort);
    /// Asks the running emulator for a fault and returns its answer, "ok" or "error: …".
    [[nodiscard]] QString requestFault(const QByteArray &command);
    /// The emulator's journal since the SDK's folder was made, one event a line.
    [[nodiscard]] QByteArray journal() const;

private:
    [[nodiscard]] QString dataFile(const QString &name) const;

    QTemporaryDir m_folder;
    std::unique_ptr<Ravik::HostSdk> m_sdk;
};

} // namespace TestSupport
