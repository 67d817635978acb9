#include "localemulator.h"

#include "localmachine.h"

namespace Ravik::Internal {

LocalEmulator::LocalEmulator(const EmulatorSettings &settings, const HostSettings &host,
                             QObject *parent)
    : Emulator(parent)
    , m_machine(new LocalMachine(settings, host, this))
{}

QString LocalEmulator::name() const
{
    return m_machine->settings().name;
}

VirtualMachine *LocalEmulator::virtualMachine() const
{
    return m_machine;
}

DeviceModelData LocalEmulator::deviceModel() const
{
    return {.name = m_machine->settings().deviceModel};
}

LocalMachine *LocalEmulator::machine() const
{
    return m_machine;
}

void LocalEmulator::setDeviceModel(const QString &modelName)
{
    if (modelName == deviceModel().name)
        return;
    m_machine->setDeviceModel(modelName);
    Q_EMIT deviceModelNameChanged(modelName);
}

} // namespace Ravik::Internal
