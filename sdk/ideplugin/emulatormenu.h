#pragma once

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QObject>
#include <QPointer>

namespace Ravik {
class Emulator;
class HostSdk;
class VirtualMachine;
} // namespace Ravik

namespace Kiv::Internal {

/// The menu of the SDK's first emulator: start, stop, device model.
class EmulatorMenu : public QObject
{
    Q_OBJECT

public:
    explicit EmulatorMenu(Ravik::HostSdk &sdk);

private:
    void createMenu();
    void followFirstEmulator();
    void listDeviceModels();
    void updateDeviceModel();
    void updateMachineActions();
    void reportFailure();
    [[nodiscard]] Ravik::VirtualMachine *machine() const;

    Ravik::HostSdk &m_sdk;
    QPointer<Ravik::Emulator> m_emulator;
    QAction m_startAction;
    QAction m_stopAction;
    QMenu m_deviceModelMenu;
    QActionGroup m_deviceModels; // rebuilt with the list of models
};

} // namespace Kiv::Internal
