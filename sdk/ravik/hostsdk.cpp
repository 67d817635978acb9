#include "hostsdk.h"

#include "localemulator.h"
#include "localmachine.h"

#include <algorithm>

namespace Ravik {

using Internal::LocalEmulator;

static bool isIdle(const VirtualMachine &machine)
{
    return machine.isOff(nullptr, nullptr)
           && (machine.state() == VirtualMachine::Disconnected
               || machine.state() == VirtualMachine::Error);
}

HostSdk::HostSdk(const QString &settingsFile, QObject *parent)
    : Sdk(parent)
    , m_settingsFile(settingsFile)
    , m_settings(SdkSettings::load(settingsFile))
{
    if (m_settings.hasDefaults)
        save();
}

HostSdk::~HostSdk() = default;

QList<Emulator *> HostSdk::emulators() const
{
    return {m_emulators.cbegin(), m_emulators.cend()};
}

void HostSdk::listEmulators()
{
    while (!m_settings.emulators.isEmpty())
        append(m_settings.emulators.takeFirst());
}

Emulator *HostSdk::addEmulator(EmulatorSettings settings)
{
    const QString folderName = settings.folderName();
    if (std::ranges::any_of(m_emulators, [&](const LocalEmulator *emulator) {
            return emulator->machine()->settings().folderName() == folderName;
        })) {
        return nullptr;
    }
    if (!m_settings.deviceModels.contains(settings.deviceModel))
        settings.deviceModel = m_settings.deviceModels.first();
    Emulator *emulator = append(settings);
    save();
    return emulator;
}

void HostSdk::removeEmulator(int index)
{
    Q_EMIT aboutToRemoveEmulator(index);
    LocalEmulator *emulator = m_emulators.takeAt(index);
    save();

    VirtualMachine *machine = emulator->virtualMachine();
    machine->shutDown();
    if (isIdle(*machine))
        emulator->deleteLater();
    else // the machine is stopping: its next state is Disconnected
        connect(machine, &VirtualMachine::stateChanged, emulator, &QObject::deleteLater);
}

QString HostSdk::dataFolder(int index) const
{
    return m_settings.host.dataFolder(m_emulators.at(index)->machine()->settings());
}

QStringList HostSdk::deviceModels() const
{
    return m_settings.deviceModels;
}

void HostSdk::setDeviceModels(const QStringList &names)
{
    if (names.isEmpty())
        return;
    m_settings.deviceModels = names;
    for (LocalEmulator *emulator : std::as_const(m_emulators)) {
        if (!names.contains(emulator->deviceModel().name))
            emulator->setDeviceModel(names.first());
    }
    save();
    Q_EMIT deviceModelsChanged();
}

void HostSdk::setDeviceModel(int index, const QString &name)
{
    if (m_settings.deviceModels.contains(name))
        m_emulators.at(index)->setDeviceModel(name);
}

void HostSdk::shutDown()
{
    m_shuttingDown = true;
    for (const LocalEmulator *emulator : std::as_const(m_emulators))
        emulator->virtualMachine()->shutDown();
    checkShutDown();
}

bool HostSdk::isShutDown() const
{
    return std::ranges::all_of(m_emulators, [](const LocalEmulator *emulator) {
        return isIdle(*emulator->virtualMachine());
    });
}

Emulator *HostSdk::append(const EmulatorSettings &settings)
{
    auto *emulator = new LocalEmulator(settings, m_settings.host, this);
    m_emulators.append(emulator);
    connect(emulator->machine(), &Internal::LocalMachine::settingsChanged, this, &HostSdk::save);
    connect(emulator->machine(), &VirtualMachine::stateChanged, this, &HostSdk::checkShutDown);
    Q_EMIT emulatorAdded(int(m_emulators.size()) - 1);
    return emulator;
}

void HostSdk::checkShutDown()
{
    if (m_shuttingDown && isShutDown()) {
        m_shuttingDown = false;
        Q_EMIT shutDownFinished();
    }
}

void HostSdk::save() const
{
    SdkSettings settings = m_settings;
    QList<EmulatorSettings> listed;
    for (const LocalEmulator *emulator : m_emulators)
        listed.append(emulator->machine()->settings());
    settings.emulators = listed + m_settings.emulators;
    settings.save(m_settingsFile);
}

} // namespace Ravik
