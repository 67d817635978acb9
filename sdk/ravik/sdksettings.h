#pragma once

#include "portforwarding.h"

#include <QList>
#include <QStringList>

namespace Ravik {

/// What the user's settings say of one emulator.
struct EmulatorSettings
{
    QString name;
    QString deviceModel;
    QList<PortForwarding> forwardings = {};
    QStringList packages = {};        // empty: the emulator's own list
    QStringList withoutPackages = {}; // taken out of either list

    /// The name as a folder; two emulators must differ in it.
    [[nodiscard]] QString folderName() const;
};

/// What all emulators share.
struct HostSettings
{
    QString folder;  // where the SDK keeps its files
    QString program; // empty: the emulator beside the application
    bool headless = false;

    [[nodiscard]] QString emulatorProgram() const;
    [[nodiscard]] QString sshKeyFile() const;
    [[nodiscard]] QString dataFolder(const EmulatorSettings &emulator) const;
};

/// The SDK's settings file. What is missing or wrong in it is replaced, entry by entry.
struct SdkSettings
{
    HostSettings host;
    QStringList deviceModels; // never empty
    QList<EmulatorSettings> emulators;
    bool hasDefaults = false; // a list was missing in the file

    static SdkSettings load(const QString &fileName);
    void save(const QString &fileName) const;
};

} // namespace Ravik
