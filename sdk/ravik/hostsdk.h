#pragma once

#include "ravik/sdk.h"
#include "sdksettings.h"

namespace Ravik {

namespace Internal {
class LocalEmulator;
}

/// The SDK for its owner: manages the emulators and the device models of a settings file.
///
/// The SDK's other files are in the folder "emulators" beside the settings file. Every change is
/// written to the settings file at once.
class RAVIK_EXPORT HostSdk final : public Sdk
{
    Q_OBJECT

public:
    explicit HostSdk(const QString &settingsFile, QObject *parent = nullptr);
    ~HostSdk() override;

    [[nodiscard]] QList<Emulator *> emulators() const override;

    /// Adds the emulators of the settings file. The owner calls it late, so that listeners can
    /// connect to the signals first.
    void listEmulators();
    /// Returns null and adds nothing when another emulator's name gives the same folder. Replaces
    /// an unknown device model by the first one.
    Emulator *addEmulator(EmulatorSettings settings);
    /// Stops the emulator's machine and deletes the emulator once the machine is off. Its folder
    /// stays.
    void removeEmulator(int index);

    /// The folder of an emulator's files, among them its journal "journal.jsonl" and its socket
    /// "control".
    [[nodiscard]] QString dataFolder(int index) const;

    [[nodiscard]] QStringList deviceModels() const;
    /// An emulator whose model is not in \a names gets the first one. An empty list is ignored.
    void setDeviceModels(const QStringList &names);
    /// Makes an emulator pose as another model; ignored when there is no such model.
    void setDeviceModel(int index, const QString &name);

    /// Stops all machines; shutDownFinished() follows, possibly at once.
    void shutDown();
    [[nodiscard]] bool isShutDown() const;

Q_SIGNALS:
    void shutDownFinished();

private:
    Emulator *append(const EmulatorSettings &settings);
    void checkShutDown();
    void save() const;

    const QString m_settingsFile;
    SdkSettings m_settings; // has the emulators only until listEmulators() takes them
    QList<Internal::LocalEmulator *> m_emulators; // children
    bool m_shuttingDown = false;
};

} // namespace Ravik
