#include "sdksettings.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <dlfcn.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Ravik {

// Keys without a group are in the file's section "General".
static constexpr auto headlessKey = "headless"_L1;
static constexpr auto programKey = "emulatorProgram"_L1;

static constexpr auto deviceModelsArray = "deviceModels"_L1;
static constexpr auto emulatorsArray = "emulators"_L1;
static constexpr auto nameKey = "name"_L1;
static constexpr auto deviceModelKey = "deviceModel"_L1;
static constexpr auto forwardingsKey = "forwardings"_L1;
static constexpr auto packagesKey = "packages"_L1;
static constexpr auto withoutPackagesKey = "withoutPackages"_L1;

static QString defaultName()
{
    return u"Nimbra OS Emulator"_s;
}

QString EmulatorSettings::folderName() const
{
    QString folderName;
    for (const QChar c : name.toLower())
        folderName += c.isLetterOrNumber() ? c : u' ';
    folderName = folderName.simplified().replace(u' ', u'-');
    return folderName.isEmpty() ? u"emulator"_s : folderName;
}

// The folder of the library that has this code.
static QString libraryFolder()
{
    static const char anything = 0;
    Dl_info library;
    return dladdr(&anything, &library)
               ? QFileInfo(QFile::decodeName(library.dli_fname)).absolutePath()
               : QString();
}

QString HostSettings::emulatorProgram() const
{
    if (!program.isEmpty())
        return program;
    const QString besideApplication
        = QCoreApplication::applicationDirPath() + "/nimbra-emulator"_L1;
    const QString besideLibrary = libraryFolder() + "/nimbra-emulator"_L1;
    return QFileInfo::exists(besideLibrary) ? besideLibrary : besideApplication;
}

QString HostSettings::sshKeyFile() const
{
    return folder + "/emulators/id_ed25519"_L1;
}

QString HostSettings::dataFolder(const EmulatorSettings &emulator) const
{
    return folder + "/emulators/"_L1 + emulator.folderName();
}

static QList<PortForwarding> readForwardings(const QSettings &file)
{
    QList<PortForwarding> forwardings;
    const QStringList texts = file.value(forwardingsKey).toStringList();
    for (const QString &text : texts) {
        const auto forwarding = PortForwarding::fromString(text);
        if (forwarding && std::ranges::none_of(forwardings, [&](const PortForwarding &other) {
                return forwarding->conflictsWith(other);
            })) {
            forwardings.append(*forwarding);
        }
    }
    return forwardings;
}

// Calls \a read for each entry of an array; false when the file has no such array.
template<typename Read>
static bool readArray(QSettings &file, QLatin1StringView array, const Read &read)
{
    bool hasSize = false;
    int size = file.value(QString(array + "/size"_L1)).toInt(&hasSize);
    if (!hasSize)
        return false;
    file.beginGroup(array);
    size = std::min(size, int(file.childGroups().size()));
    file.endGroup();

    file.beginReadArray(array);
    for (int i = 0; i < size; ++i) {
        file.setArrayIndex(i);
        read();
    }
    file.endArray();
    return true;
}

// QSettings would write an empty list as "@Invalid()".
static void writeList(QSettings &file, QLatin1StringView key, const QStringList &list)
{
    if (!list.isEmpty())
        file.setValue(key, list);
}

SdkSettings SdkSettings::load(const QString &fileName)
{
    QSettings file(fileName, QSettings::IniFormat);
    SdkSettings settings;
    settings.host = {.folder = QFileInfo(fileName).absolutePath(),
                     .program = file.value(programKey).toString(),
                     .headless = file.value(headlessKey).toBool()};

    QStringList &models = settings.deviceModels;
    const bool hasModels = readArray(file, deviceModelsArray, [&] {
        const QString name = file.value(nameKey).toString();
        if (!name.isEmpty() && !models.contains(name))
            models.append(name);
    });
    if (models.isEmpty())
        models = {u"Nimbra Phone"_s, u"Nimbra Tablet"_s, u"Nimbra Lite"_s};

    QList<EmulatorSettings> &emulators = settings.emulators;
    const bool hasEmulators = readArray(file, emulatorsArray, [&] {
        EmulatorSettings emulator{.name = file.value(nameKey).toString(),
                                  .deviceModel = file.value(deviceModelKey).toString(),
                                  .forwardings = readForwardings(file),
                                  .packages = file.value(packagesKey).toStringList(),
                                  .withoutPackages = file.value(withoutPackagesKey).toStringList()};
        if (emulator.name.isEmpty())
            emulator.name = defaultName();
        if (!models.contains(emulator.deviceModel))
            emulator.deviceModel = models.first();
        if (std::ranges::none_of(emulators, [&](const EmulatorSettings &other) {
                return emulator.folderName() == other.folderName();
            })) {
            emulators.append(emulator);
        }
    });
    if (!hasEmulators)
        emulators = {{.name = defaultName(), .deviceModel = models.first()}};
    settings.hasDefaults = !hasModels || !hasEmulators;
    return settings;
}

void SdkSettings::save(const QString &fileName) const
{
    QSettings file(fileName, QSettings::IniFormat);
    file.setValue(headlessKey, host.headless);

    file.remove(deviceModelsArray);
    file.beginWriteArray(deviceModelsArray, int(deviceModels.size()));
    for (int i = 0; i < deviceModels.size(); ++i) {
        file.setArrayIndex(i);
        file.setValue(nameKey, deviceModels.at(i));
    }
    file.endArray();

    file.remove(emulatorsArray);
    file.beginWriteArray(emulatorsArray, int(emulators.size()));
    for (int i = 0; i < emulators.size(); ++i) {
        const EmulatorSettings &emulator = emulators.at(i);
        file.setArrayIndex(i);
        file.setValue(nameKey, emulator.name);
        file.setValue(deviceModelKey, emulator.deviceModel);
        QStringList forwardings;
        for (const PortForwarding &forwarding : emulator.forwardings)
            forwardings << forwarding.toString();
        writeList(file, forwardingsKey, forwardings);
        writeList(file, packagesKey, emulator.packages);
        writeList(file, withoutPackagesKey, emulator.withoutPackages);
    }
    file.endArray();
}

} // namespace Ravik
