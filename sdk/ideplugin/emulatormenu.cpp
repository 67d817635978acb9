#include "emulatormenu.h"

#include <hostsdk.h>

#include <ravik/emulator.h>
#include <ravik/virtualmachine.h>

#include <coreplugin/actionmanager/actioncontainer.h>
#include <coreplugin/actionmanager/actionmanager.h>
#include <coreplugin/messagemanager.h>

using Core::ActionManager;
using Ravik::HostSdk;
using Ravik::VirtualMachine;

namespace Kiv::Internal {

// Other plugins of the SDK put their actions into this menu.
static constexpr char menuId[] = "Kiv.Tools.Menu";
static constexpr char startActionId[] = "Kiv.StartEmulator";
static constexpr char stopActionId[] = "Kiv.StopEmulator";

EmulatorMenu::EmulatorMenu(HostSdk &sdk)
    : m_sdk(sdk)
    , m_startAction(tr("Start Emulator"))
    , m_stopAction(tr("Stop Emulator"))
    , m_deviceModelMenu(tr("Device Model"))
    , m_deviceModels(nullptr)
{
    connect(&m_startAction, &QAction::triggered, this,
            [this] { machine()->connectTo(VirtualMachine::NoConnectOptions, this, [](bool) {}); });
    connect(&m_stopAction, &QAction::triggered, this, [this] { machine()->shutDown(); });
    connect(&m_deviceModels, &QActionGroup::triggered, this,
            [this](const QAction *action) { m_sdk.setDeviceModel(0, action->data().toString()); });
    createMenu();

    connect(&m_sdk, &HostSdk::emulatorAdded, this, &EmulatorMenu::followFirstEmulator);
    // Queued, because the emulator is still in the list while the signal is delivered.
    connect(&m_sdk, &HostSdk::aboutToRemoveEmulator, this, &EmulatorMenu::followFirstEmulator,
            Qt::QueuedConnection);
    connect(&m_sdk, &HostSdk::deviceModelsChanged, this, &EmulatorMenu::listDeviceModels);
    listDeviceModels();
    followFirstEmulator();
}

void EmulatorMenu::createMenu()
{
    Core::ActionContainer *container = ActionManager::createMenu(menuId);
    container->menu()->setTitle(tr("&Nimbra OS"));
    container->addAction(ActionManager::registerAction(&m_startAction, startActionId));
    container->addAction(ActionManager::registerAction(&m_stopAction, stopActionId));
    container->menu()->addMenu(&m_deviceModelMenu);
    // If another plugin adds the menu again, it is moved, not doubled.
    ActionManager::actionContainer(Core::Constants::M_TOOLS)->addMenu(container);
}

void EmulatorMenu::followFirstEmulator()
{
    if (m_emulator) {
        m_emulator->disconnect(this);
        machine()->disconnect(this);
    }
    m_emulator = m_sdk.emulators().value(0);
    if (m_emulator) {
        connect(m_emulator, &Ravik::Emulator::deviceModelNameChanged, this,
                &EmulatorMenu::updateDeviceModel);
        connect(machine(), &VirtualMachine::virtualMachineOffChanged, this,
                &EmulatorMenu::updateMachineActions);
        connect(machine(), &VirtualMachine::stateChanged, this, [this] {
            updateMachineActions();
            reportFailure();
        });
    }
    updateDeviceModel();
    updateMachineActions();
}

void EmulatorMenu::listDeviceModels()
{
    qDeleteAll(m_deviceModels.actions());
    const QStringList names = m_sdk.deviceModels();
    for (const QString &name : names) {
        // an ampersand would mark a shortcut
        QAction *action = m_deviceModelMenu.addAction(QString(name).replace(u'&', "&&"));
        action->setData(name);
        action->setCheckable(true);
        m_deviceModels.addAction(action);
    }
    updateDeviceModel();
}

void EmulatorMenu::updateDeviceModel()
{
    m_deviceModelMenu.setEnabled(m_emulator);
    const QString name = m_emulator ? m_emulator->deviceModel().name : QString();
    const QList<QAction *> actions = m_deviceModels.actions();
    for (QAction *action : actions)
        action->setChecked(action->data().toString() == name);
}

void EmulatorMenu::updateMachineActions()
{
    const VirtualMachine::State state
        = m_emulator ? machine()->state() : VirtualMachine::Disconnecting;
    const bool isOff = !m_emulator || machine()->isOff(nullptr, nullptr);
    m_startAction.setEnabled(m_emulator && isOff && state != VirtualMachine::Starting);
    m_stopAction.setEnabled(m_emulator && (!isOff || state == VirtualMachine::Starting)
                            && state != VirtualMachine::Disconnecting);
}

void EmulatorMenu::reportFailure()
{
    const VirtualMachine::State state = machine()->state();
    const bool hasEnded = state == VirtualMachine::Error || state == VirtualMachine::Disconnected;
    if (hasEnded && !machine()->errorString().isEmpty())
        Core::MessageManager::writeDisrupting(machine()->errorString());
}

VirtualMachine *EmulatorMenu::machine() const
{
    return m_emulator->virtualMachine();
}

} // namespace Kiv::Internal
