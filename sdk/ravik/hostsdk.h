#pragma once

#include "ravik/sdk.h"
#include "sdksettings.h"

namespace Ravik {

namespace Internal {
class LocalEmulator;
}

/// The SDK as its owner sees it: keeps the emulators and the device models of a settings file.
///
/// Everything else that it makes lies in the folder "emulators" beside that file. Every change
/// is written to the file at once.
class RAVIK_EXPORT HostSdk final : public Sdk
{
    Q_OBJECT

public:
    explicit HostSdk(const QString &settingsFile, QObject *parent = nullptr);
    ~HostSdk() override;

    [[nodiscard]] QList<Emulator *> emulators() const override;

    /// Adds the emulators of the settings file. Until then there are none, so that whoever
    /// depends on the signals has the time to connect to them.
    void listEmulators();
    /// Null, and nothing is added, when another emulator's name gives the same folder. A device
    /// model that does not exist is replaced by the first.
    Emulator *addEmulator(EmulatorSettings settings);
    /// Stops the emulator's machine and deletes the emulator once the machine is off. Its folder
    /// stays.
    void removeEmulator(int index);

    [[nodiscard]] QStringList deviceModels() const;
    /// An emulator whose model is not in the list gets the first. An empty list is ignored.
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
    SdkSettings m_settings; // its emulators: those that are not listed yet
    QList<Internal::LocalEmulator *> m_emulators; // children
    bool m_shuttingDown = false;
};

} // namespace Ravik
