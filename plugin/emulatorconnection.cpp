// The part of EmulationManagementPlugin that prepares the emulator and opens the window.

#include "emulationmanagementplugin.h"

#include <ravik/emulator.h>
#include <ravik/execasynchronous.h>
#include <ravik/sdk.h>
#include <ravik/virtualmachine.h>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

/// The machine's state once the emulator answers over SSH.
static constexpr int reachableState = 4;

namespace {

struct PortForwarding
{
    QString rule;
    QString protocol;
    unsigned short hostPort;
    unsigned short emulatorPort;
};

} // namespace

static QList<PortForwarding> portForwardings()
{
    return {{RemoteDBusInvokerService::portForwardingRule, u"tcp"_s,
             RemoteDBusInvokerService::hostTcpPort, RemoteDBusInvokerService::emulatorTcpPort},
            {CameraEmulationManager::portForwardingRule, u"udp"_s, CameraEmulationManager::udpPort,
             CameraEmulationManager::udpPort}};
}

void EmulationManagementPlugin::setUpEmulatorConnection()
{
    const QList<Ravik::Emulator *> emulators = m_sdk->emulators();
    if (emulators.isEmpty()) {
        m_currentEmulator = nullptr;
        return;
    }
    Ravik::Emulator *emulator = emulators.first();
    m_currentEmulator = emulator;
    updateSensorsConfiguration(emulator->deviceModel().name);
    m_smartphone3DModelConfig.updateSmartphone3DModel(emulator->deviceModel().name);

    connect(emulator, &Ravik::Emulator::deviceModelNameChanged, this,
            &EmulationManagementPlugin::updateSensorsConfiguration);
    connect(emulator, &Ravik::Emulator::deviceModelNameChanged, &m_smartphone3DModelConfig,
            &Smartphone3DModelConfig::updateSmartphone3DModel);
    connect(&m_remoteDBusInvokerService, &RemoteDBusInvokerService::webSocketDisconnected, this,
            &EmulationManagementPlugin::handleConnectionLost);

    Ravik::VirtualMachine *machine = emulator->virtualMachine();
    connect(machine, &Ravik::VirtualMachine::virtualMachineOffChanged, this, [this](bool off) {
        if (off) {
            m_emulationManagementView.hide();
            m_cameraEmulationManager.stopStreams(); // a recording may stream while it is hidden
            m_packagesChecked = false;
            // If a start was requested while the machine was stopping, the machine starts now.
            if (!m_startRequested)
                abandonOpening();
        }
        m_vmRunning = !off;
    });
    connect(machine, &Ravik::VirtualMachine::stateChanged, this, [this, machine] {
        if (machine->state() == reachableState && m_startRequested) {
            checkEmulationPackages();
            m_startRequested = false;
        }
    });
}

void EmulationManagementPlugin::showEmulationManagementView()
{
    if (m_openingProgress.isRunning())
        return;
    if (!m_currentEmulator) {
        showMessageBox(tr("The emulation management plugin cannot be used. Please, close the "
                          "emulator if it is running and add %1 Emulator to the list of available "
                          "devices in Qt Creator settings.")
                           .arg(Ravik::Sdk::osVariant(Ravik::TextStyle{})),
                       {}, QMessageBox::Ok);
        return;
    }

    m_vmRunning = !m_currentEmulator->virtualMachine()->isOff(nullptr, nullptr);
    if (!m_vmRunning) {
        m_emulationManagementView.hide();
        m_packagesChecked = false;
    }
    if (!m_packagesChecked)
        m_openingProgress.start();
    // This runs an event loop, in which the emulator may be removed and the opening cancelled.
    if (!setUpPortForwarding() || !m_currentEmulator) {
        abandonOpening();
        return;
    }

    if (!m_vmRunning) {
        if (m_openingProgress.isRunning())
            startMachine([] {}); // the SDK itself reports a failed start
        return;
    }
    Q_EMIT emulationManagementViewShowed();
    if (m_packagesChecked)
        openView();
    else
        checkEmulationPackages();
}

void EmulationManagementPlugin::startMachine(const std::function<void()> &handleFailure)
{
    m_openingProgress.setStep(tr("Starting %1").arg(m_currentEmulator->name()));
    m_startRequested = true;
    m_currentEmulator->virtualMachine()->connectTo({}, this,
                                                   [this, handleFailure](bool isReachable) {
                                                       if (isReachable || !m_startRequested)
                                                           return;
                                                       abandonOpening();
                                                       handleFailure();
                                                   });
}

void EmulationManagementPlugin::abandonOpening()
{
    m_startRequested = false;
    disconnect(&m_packagesChecker, nullptr, nullptr, nullptr);
    m_openingProgress.finish();
}

void EmulationManagementPlugin::handleOpeningTimedOut()
{
    abandonOpening();
    const QString name = m_currentEmulator ? m_currentEmulator->name() : QString();
    showMessageBox(tr("%1 has not become ready within %2 minutes. Please, try to use 'Emulation "
                      "management…' again.")
                       .arg(name)
                       .arg(OpeningProgress::timeLimit.count()),
                   {}, QMessageBox::Ok);
}

void EmulationManagementPlugin::openView()
{
    // Setting up resets stream and selection, so leave a visible window alone.
    if (!m_emulationManagementView.isVisible())
        m_cameraEmulationManager.setupCameraStreamPipeline();
    m_emulationManagementView.bringToFront();
}

bool EmulationManagementPlugin::setUpPortForwarding()
{
    Ravik::VirtualMachine *machine = m_currentEmulator->virtualMachine();
    const QList<PortForwarding> forwardings = portForwardings();
    const bool complete = std::ranges::all_of(forwardings, [machine](const PortForwarding &port) {
        return machine->hasPortForwarding(port.hostPort, nullptr);
    });
    if (complete)
        return true;

    if (m_vmRunning) {
        showMessageBox(tr("The emulation management plugin cannot be used. Please, close %1 and "
                          "try to use 'Emulation management…' again.")
                           .arg(m_currentEmulator->name()),
                       {}, QMessageBox::Ok);
        return false;
    }
    // Both rules are added, even if one exists: the machine refuses a duplicate.
    for (const PortForwarding &port : forwardings) {
        Ravik::execAsynchronous(
            [this, &port](const QObject *context, const std::function<void(bool)> &callback) {
                if (!m_currentEmulator)
                    return callback(false);
                m_currentEmulator->virtualMachine()->addPortForwarding(
                    port.rule, port.protocol, port.hostPort, port.emulatorPort, context, callback);
            });
    }
    return true;
}

void EmulationManagementPlugin::checkEmulationPackages()
{
    if (!m_currentEmulator)
        return;
    m_openingProgress.setStep(tr("Checking the packages of %1").arg(m_currentEmulator->name()));
    connect(&m_packagesChecker, &EmulationManagementPackagesChecker::checkFinished, this,
            &EmulationManagementPlugin::handlePackagesChecked);
    m_packagesChecker.checkPackages(m_currentEmulator->virtualMachine()->sshParameters());
}

void EmulationManagementPlugin::handlePackagesChecked(const QString &message,
                                                      const QString &detailedText)
{
    disconnect(&m_packagesChecker, nullptr, nullptr, nullptr); // handle each check once
    const auto showMessage = [this, message, detailedText] {
        showMessageBox(message, detailedText, QMessageBox::Close);
    };
    // The machine may run without answering yet, for example when the user started it elsewhere.
    if (!message.isEmpty() && m_currentEmulator
        && m_currentEmulator->virtualMachine()->state() != reachableState) {
        startMachine(showMessage);
        return;
    }
    abandonOpening();
    if (!message.isEmpty()) {
        showMessage();
        return;
    }
    m_packagesChecked = true;
    m_remoteDBusInvokerService.connectToEmulator();
    openView();
}

void EmulationManagementPlugin::handleConnectionLost()
{
    if (!m_gpsEmulationManager.trackLoaded())
        return;
    // This forgets the track, so that failed attempts to reconnect show no further message.
    m_gpsEmulationManager.setupGPSData();
    Q_EMIT m_gpsEmulationManager.replyFromEmulatorReceived({});
    showConnectionLost();
}

void EmulationManagementPlugin::showConnectionLost()
{
    const QString name = m_currentEmulator ? m_currentEmulator->name() : QString();
    showMessageBox(tr("Emulator connection is lost. Please, run %1 if it is needed and load the "
                      "GPS-track again.")
                       .arg(name),
                   {}, QMessageBox::Ok);
}

} // namespace EmulationManagement::Internal
