#include "emulationmanagementplugin.h"

#include "emulationmanagementconstants.h"
#include "messageboxbuttons.h"
#include "textfielddoublevalidator.h"
#include "warningdialog.h"

#include <coreplugin/actionmanager/actioncontainer.h>
#include <coreplugin/actionmanager/actionmanager.h>
#include <coreplugin/actionmanager/command.h>
#include <coreplugin/coreconstants.h>
#include <coreplugin/icore.h>
#include <coreplugin/messagemanager.h>
#include <coreplugin/progressmanager/progressmanager.h>

#include <camera/cameraplayback.h>

#include <devicemodel/devicemodelfiles.h>
#include <devicemodel/devicemodelreader.h>
#include <devicemodel/imageitem.h>

#include <extensionsystem/pluginmanager.h>
#include <extensionsystem/pluginspec.h>

#include <link/recording.h>

#include <location/trackmodel.h>
#include <location/trackreader.h>

#include <ravik/sdk.h>

#include <utils/filepath.h>
#include <utils/qtcsettings.h>
#include <utils/theme/theme.h>

#include <QAction>
#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlFileSelector>
#include <QSettings>
#include <QTranslator>

#include <utility>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

constexpr char qmlModule[] = "org.plova";
constexpr int qmlMajorVersion = 1; // the pages import 1.0

bool EmulationManagementPlugin::initialize(const QStringList &arguments, QString *errorString)
{
    Q_UNUSED(arguments)
    Q_UNUSED(errorString)

    setupTranslations();
    registerQmlTypes();
    setupContextProperties();
    initEmulatorModesSensorsConfigurations();
    // The GPS manager is connected to the invoker a second time: on each connection it sends its
    // state twice, and it handles every reply twice.
    m_gpsEmulationManager.setRdbusinvoker(&m_remoteDBusInvokerService);
    setupTrackReader();
    setupView();
    setupMenu();
    setupOutputPane();
    connect(&m_openingProgress, &OpeningProgress::canceled, this,
            &EmulationManagementPlugin::abandonOpening);
    connect(&m_openingProgress, &OpeningProgress::timedOut, this,
            &EmulationManagementPlugin::handleOpeningTimedOut);
    return true;
}

void EmulationManagementPlugin::extensionsInitialized()
{
    m_sdk = Ravik::Sdk::instance();
    if (!m_sdk)
        return;
    connect(m_sdk, &Ravik::Sdk::emulatorAdded, this,
            &EmulationManagementPlugin::setUpEmulatorConnection);
    connect(m_sdk, &Ravik::Sdk::aboutToRemoveEmulator, this,
            &EmulationManagementPlugin::setUpEmulatorConnection);
    // Queued: runs once the removed emulator has left the list, and takes the next one.
    connect(m_sdk, &Ravik::Sdk::aboutToRemoveEmulator, this,
            &EmulationManagementPlugin::setUpEmulatorConnection, Qt::QueuedConnection);
    connect(m_sdk, &Ravik::Sdk::deviceModelsChanged, this,
            &EmulationManagementPlugin::setUpEmulatorConnection);
}

ExtensionSystem::IPlugin::ShutdownFlag EmulationManagementPlugin::aboutToShutdown()
{
    prepareShutdown();
    return SynchronousShutdown;
}

void EmulationManagementPlugin::prepareShutdown()
{
    abandonOpening();
    // The emulator may stop together with the IDE: do not report the lost connection then.
    disconnect(&m_remoteDBusInvokerService, nullptr, this, nullptr);
    m_messageBoxes.clear();
    m_gpsEmulationManager.trackReader()->cancel();
    m_emulationManagementView.close();
}

void EmulationManagementPlugin::setupTranslations()
{
    static constexpr char catalogue[] = "EmulationManagement";

    const QVariant language
        = ExtensionSystem::PluginManager::settings()->value("General/OverrideLanguage");
    const QLocale locale = language.isValid() ? QLocale(language.toString()) : QLocale();
    const QString directory = Core::ICore::resourcePath("translations").toFSPathString();

    // An archive for the IDE's dialog Install Plugin brings the catalogues beside the library.
    const QString installed
        = (ExtensionSystem::PluginManager::specForPlugin(this)->location() / "translations")
              .toFSPathString();

    auto *translator = new QTranslator(this);
    const auto load = [&](const QString &folder) {
        return translator->load(locale, QLatin1StringView(catalogue), u"_"_s, folder);
    };
    if (load(directory) || load(installed))
        QCoreApplication::installTranslator(translator);
    else
        qDebug() << "Failed to load translator:" << directory << catalogue;
}

void EmulationManagementPlugin::registerQmlTypes()
{
    qputenv("QML_XHR_ALLOW_FILE_READ", "1");

    // The classes' headers name them (QML_ELEMENT) and say which of them QML cannot create.
    qmlRegisterTypesAndRevisions<
        WarningDialog, SettingsManager, TextFieldDoubleValidator, SensorsEmulationManager,
        GPSEmulationManager, CameraEmulationManager, AlsModel, TapModel, TrackModel, TrackReader,
        StreamPreview, DeviceMesh, DeviceModelReader, ImageItem>(qmlModule, qmlMajorVersion);
    qRegisterMetaType<AlsModel::LightLevel>("AlsModel::LightLevel");
    qRegisterMetaType<TapModel::TapDirection>("TapModel::TapDirection");
}

void EmulationManagementPlugin::setupContextProperties()
{
    m_gpsEmulationManager.setRdbusinvoker(&m_remoteDBusInvokerService);
    m_sensorsEmulationManager.setRdbusinvoker(&m_remoteDBusInvokerService);

    const auto setProperty
        = [context = m_emulationManagementView.rootContext()](const char *name, const auto &value) {
              context->setContextProperty(QLatin1StringView(name), value);
          };
    setProperty("remoteDBusInvokerService", &m_remoteDBusInvokerService);
    setProperty("gpsEmulationManager", &m_gpsEmulationManager);
    setProperty("sensorsEmulationManager", &m_sensorsEmulationManager);
    setProperty("smartphone3DModelConfig", &m_smartphone3DModelConfig);
    setProperty("emulationManagementPlugin", this);

    const Utils::Theme *theme = Utils::creatorTheme();
    setProperty("themeBackgroundColorNormal", theme->color(Utils::Theme::BackgroundColorNormal));
    setProperty("themeHighlightColor", theme->color(Utils::Theme::PaletteHighlight));
    setProperty("themeSeparatorColor", theme->color(Utils::Theme::FancyToolBarSeparatorColor));
    setProperty("darkUserInterface", theme->flag(Utils::Theme::DarkUserInterface));
}

void EmulationManagementPlugin::setupTrackReader()
{
    static constexpr char taskType[] = "EmulationManagement.ReadingTrack";
    TrackReader *reader = m_gpsEmulationManager.trackReader();
    connect(reader, &TrackReader::takingLongChanged, this, [reader] {
        if (reader->isTakingLong())
            Core::ProgressManager::addTask(reader->future(), tr("Reading Track File"), taskType);
    });
    connect(&m_remoteDBusInvokerService, &RemoteDBusInvokerService::connectionLost, this,
            [this, reader] {
                if (!reader->isReading())
                    return;
                reader->cancel();
                // A loaded track gets the same message from handleConnectionLost().
                if (!m_gpsEmulationManager.trackLoaded())
                    showConnectionLost();
            });
}

void EmulationManagementPlugin::setupView()
{
    QQmlContext *context = m_emulationManagementView.rootContext();
    context->setContextProperty(u"cameraEmulationManager"_s, &m_cameraEmulationManager);

    // On platforms without native dialogs, this selects the dialogs of the controls' style.
    QQmlEngine *engine = m_emulationManagementView.engine();
    new QQmlFileSelector(engine, engine);

    m_emulationManagementView.setTitle(tr("Emulation Management"));
    m_emulationManagementView.setResizeMode(QQuickView::SizeRootObjectToView);
    m_emulationManagementView.setSource(
        QUrl(u"qrc:/emulationmanagement/qml/EmulationManagementView.qml"_s));

    connect(&m_emulationManagementView, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible)
            handleViewHidden();
    });
    // The IDE quits when its last window closes, so this window must close first.
    connect(Core::ICore::instance(), &Core::ICore::coreAboutToClose, this,
            &EmulationManagementPlugin::prepareShutdown);
}

void EmulationManagementPlugin::handleViewHidden()
{
    m_cameraEmulationManager.stopStreams();
    m_sensorsEmulationManager.saveCurrentSensorsValues();
}

void EmulationManagementPlugin::setupMenu()
{
    auto *action = new QAction(tr("Emulation Management…"), this);
    Core::Command *command = Core::ActionManager::registerAction(
        action, Constants::showEmulationManagementViewActionId,
        Core::Context(Core::Constants::C_GLOBAL));
    connect(action, &QAction::triggered, this,
            &EmulationManagementPlugin::showEmulationManagementView);

    // Returns the existing menu if the SDK's main plugin has created it; that plugin sets its
    // title.
    Core::ActionContainer *sdkMenu = Core::ActionManager::createMenu(Constants::sdkToolsMenuId);
    sdkMenu->addAction(command);
    Core::ActionManager::actionContainer(Core::Constants::M_TOOLS)->addMenu(sdkMenu);
}

void EmulationManagementPlugin::setupOutputPane()
{
    m_outputPane = std::make_unique<EmulationOutputPane>(&m_callLog, &m_remoteDBusInvokerService);
    EmulationOutputPane *pane = m_outputPane.get();
    const auto add = [pane](QStringView method, const QJsonArray &arguments) {
        pane->addCameraCall(
            *findMethod(cameraService, method),
            QString::fromUtf8(QJsonDocument(arguments).toJson(QJsonDocument::Compact)));
    };
    const CameraEmulationManager *camera = &m_cameraEmulationManager;
    connect(camera, &CameraEmulationManager::cameraStreamStarted, pane,
            [add](const QString &name, QSize size, const QString &framerate) {
                QJsonArray arguments{name};
                if (size.isValid() && !size.isEmpty())
                    arguments << size.width() << size.height();
                if (arguments.size() > 1 && !framerate.isEmpty())
                    arguments << framerate;
                add(u"startCamera", arguments);
            });
    connect(camera, &CameraEmulationManager::videoStreamStarted, pane,
            [add](const QString &file) { add(u"startVideo", {file}); });
    connect(camera, &CameraEmulationManager::streamStopped, pane, [add] { add(u"stop", {}); });
    connect(camera, &CameraEmulationManager::streamMeasured, this,
            [this, camera, last = QString()]() mutable {
                const QSize size = camera->streamSize();
                const QString text = tr("camera: %1 x %2 pixels, %3 frames a second")
                                         .arg(size.width())
                                         .arg(size.height())
                                         .arg(camera->streamFramesPerSecond());
                if (size.isValid() && text != std::exchange(last, text))
                    m_callLog.note(text);
            });
    connect(pane, &EmulationOutputPane::recordingRead, this, [this](const Recording &recording) {
        CameraPlayback::prepare(m_cameraEmulationManager, recording);
    });
    connect(pane, &EmulationOutputPane::playingChanged, this,
            &EmulationManagementPlugin::handleRecordingPlaying);
    connect(pane, &EmulationOutputPane::cameraCallDue, this, [this](const RecordedCall &call) {
        m_recordingHasCamera = true;
        const QString error = CameraPlayback::play(m_cameraEmulationManager, call);
        if (!error.isEmpty())
            Core::MessageManager::writeFlashing(error);
    });
}

void EmulationManagementPlugin::handleRecordingPlaying(bool playing)
{
    if (playing == m_sensorsEmulationManager.isSuspended())
        return;
    // The window may be hidden, and then it could not stop the camera.
    if (!playing && std::exchange(m_recordingHasCamera, false))
        m_cameraEmulationManager.stopStreams();
    m_sensorsEmulationManager.setSuspended(playing);
    m_gpsEmulationManager.setSuspended(playing);
    if (!playing && m_remoteDBusInvokerService.isConnected()) {
        m_sensorsEmulationManager.setupSensors();
        m_gpsEmulationManager.setupGPSData();
    }
}

/// Returns whether the device model of this file has each sensor, by sensor name.
static QVariantMap readSensors(QSettings &file)
{
    QVariantMap sensors;
    file.beginGroup(u"sensors"_s);
    const QStringList names = file.childKeys();
    for (const QString &name : names)
        sensors.insert(name, file.value(name, true).toBool());
    file.endGroup();
    return sensors;
}

void EmulationManagementPlugin::initEmulatorModesSensorsConfigurations()
{
    m_deviceSensorsConfigurations
        = readDeviceModelFiles(QCoreApplication::applicationDirPath(), &readSensors);
}

void EmulationManagementPlugin::updateSensorsConfiguration(const QString &deviceModelName)
{
    const QVariantMap sensors = m_deviceSensorsConfigurations[deviceModelName].toMap();
    if (sensors.isEmpty()) {
        m_sensorsEmulationManager.makeAllSensorsAvailable();
        return;
    }
    for (auto sensor = sensors.cbegin(); sensor != sensors.cend(); ++sensor)
        m_sensorsEmulationManager.setSensorAvailable(sensor.key(), sensor.value().toBool());
}

void EmulationManagementPlugin::showMessageBox(const QString &text, const QString &informativeText,
                                               const QMessageBox::StandardButtons &buttons)
{
    auto *box = new QMessageBox(QMessageBox::Information, tr("Emulation management plugin"), text,
                                buttons, Core::ICore::mainWindow(),
                                Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    m_messageBoxes.add(box);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::ApplicationModal);
    box->setTextFormat(Qt::PlainText); // the emulator's name may contain markup
    box->setInformativeText(informativeText);
    translateButtons(box);
    connect(box, &QDialog::finished, this, [this](int answer) {
        // The box raised the IDE above the window: bring it back, unless it is minimised.
        if (m_emulationManagementView.isVisible()
            && !(m_emulationManagementView.windowStates() & Qt::WindowMinimized)) {
            m_emulationManagementView.bringToFront();
        }
        if (answer == QMessageBox::Retry)
            showEmulationManagementView();
    });
    // The caller may be inside another object's signal: show the box from the event loop.
    QMetaObject::invokeMethod(box, &QWidget::show, Qt::QueuedConnection);
}

} // namespace EmulationManagement::Internal
