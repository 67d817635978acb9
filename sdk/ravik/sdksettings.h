#pragma once

#include "portforwarding.h"

#include <QList>
#include <QStringList>

namespace Ravik {

/// The user's settings of one emulator.
struct EmulatorSettings
{
    QString name;
    QString deviceModel;
    QList<PortForwarding> forwardings = {};
    QStringList packages = {};        // empty: the emulator's own list
    QStringList withoutPackages = {}; // removed from either list

    /// The name of the emulator's folder, made from its name. No two are the same.
    [[nodiscard]] QString folderName() const;
};

/// The settings that all emulators share.
struct HostSettings
{
    QString folder;  // the SDK keeps its files here
    QString program; // empty: the emulator beside the application or the SDK
    bool headless = false;

    [[nodiscard]] QString emulatorProgram() const;
    [[nodiscard]] QString sshKeyFile() const;
    [[nodiscard]] QString dataFolder(const EmulatorSettings &emulator) const;
};

/// The SDK's settings file. Each missing or invalid entry is replaced by a default.
struct SdkSettings
{
    HostSettings host;
    QStringList deviceModels; // never empty
    QList<EmulatorSettings> emulators;
    bool hasDefaults = false; // the file lacked a list and got its defaults

    static SdkSettings load(const QString &fileName);
    void save(const QString &fileName) const;
};

} // namespace Ravik
