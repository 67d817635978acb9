#pragma once

#include "emulationmanagementpackageschecker.h"
#include "emulationmanagementview.h"
#include "emulationoutputpane.h"
#include "openingprogress.h"

#include <camera/cameraemulationmanager.h>

#include <devicemodel/smartphone3dmodelconfig.h>

#include <link/calllog.h>
#include <link/remotedbusinvokerservice.h>

#include <location/gpsemulationmanager.h>

#include <sensors/sensorsemulationmanager.h>

#include <extensionsystem/iplugin.h>

#include <QMap>
#include <QMessageBox>
#include <QObjectCleanupHandler>
#include <QPointer>
#include <QVariant>

#include <functional>
#include <memory>

namespace Ravik {
class Emulator;
class Sdk;
class VirtualMachine;
} // namespace Ravik

namespace EmulationManagement::Internal {

/*!
 * The plugin: owns every long-lived object, wires them, and opens the tool window.
 *
 * It serves the first emulator of the SDK. The window is shown once the emulator runs, its two
 * ports are forwarded and its packages were found.
 */
class EmulationManagementPlugin final : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QtCreatorPlugin" FILE "EmulationManagement.json")

public:
    bool initialize(const QStringList &arguments, QString *errorString) override;
    void extensionsInitialized() override;
    ShutdownFlag aboutToShutdown() override;

    /*!
     * Brings the window to the front, or tells the user why that is impossible.
     *
     * If needed, it first starts the emulator and checks its packages, which may take minutes.
     * Calls during that time do nothing.
     */
    void showEmulationManagementView();

Q_SIGNALS:
    /// The emulator runs and its ports are forwarded. Emitted before the window is shown.
    void emulationManagementViewShowed();

private:
    void setupTranslations();
    void registerQmlTypes();
    void setupContextProperties();
    void setupTrackReader();
    void setupView();
    void setupMenu();
    void setupOutputPane();
    /// Keeps the window from sending while a recording plays, and sends its values afterwards.
    void handleRecordingPlaying(bool playing);
    void initEmulatorModesSensorsConfigurations();

    /*!
     * Takes the SDK's first emulator and follows it.
     *
     * Earlier connections remain, so each handler runs as often as this was called.
     */
    void setUpEmulatorConnection();
    /// Returns whether the window may be opened. Adds missing forwardings if the machine is off.
    bool setUpPortForwarding();
    /// Asks the SDK to start the machine, or to wait until a running one is reachable. The package
    /// check follows.
    void startMachine(const std::function<void()> &handleFailure);
    void checkEmulationPackages();
    void handlePackagesChecked(const QString &message, const QString &detailedText);
    /// Stops waiting for the machine's start and for the package check.
    void abandonOpening();
    void handleOpeningTimedOut();
    void openView();
    void handleViewHidden();
    void handleConnectionLost();
    void showConnectionLost();
    /// Ends everything that would keep the IDE from quitting or appear while it quits.
    void prepareShutdown();
    void updateSensorsConfiguration(const QString &deviceModelName);
    /// Returns at once; the box is shown from the event loop.
    void showMessageBox(const QString &text, const QString &informativeText,
                        const QMessageBox::StandardButtons &buttons);

    RemoteDBusInvokerService m_remoteDBusInvokerService;
    CallLog m_callLog{&m_remoteDBusInvokerService};
    GPSEmulationManager m_gpsEmulationManager;
    SensorsEmulationManager m_sensorsEmulationManager;
    Smartphone3DModelConfig m_smartphone3DModelConfig;
    CameraEmulationManager m_cameraEmulationManager;
    EmulationManagementView m_emulationManagementView;
    Ravik::Sdk *m_sdk = nullptr;
    QPointer<Ravik::Emulator> m_currentEmulator;
    bool m_vmRunning = false;
    bool m_packagesChecked = false;
    bool m_recordingHasCamera = false; // it has sent a call of the camera since it began to play
    bool m_startRequested = false;
    QMap<QString, QVariant> m_deviceSensorsConfigurations;
    EmulationManagementPackagesChecker m_packagesChecker;
    OpeningProgress m_openingProgress{this};
    QObjectCleanupHandler m_messageBoxes; // open, or queued to be shown
    std::unique_ptr<EmulationOutputPane> m_outputPane; // after the log and the link that it uses
};

} // namespace EmulationManagement::Internal
