#include "connectiontest.h"

#include <plugindriver.h>

#include <messageboxanswers.h>
#include <waiting.h>
#include <windowdriver.h>

#include <hostsdk.h>

#include <ravik/emulator.h>
#include <ravik/virtualmachine.h>

#include <coreplugin/icore.h>
#include <coreplugin/progressmanager/progressmanager.h>

#include <utils/qtcsettings.h>

#include <QApplication>
#include <QFileInfo>
#include <QPointer>
#include <QQmlListReference>
#include <QQuickItem>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <algorithm>

using namespace PluginDriver;
using namespace Qt::StringLiterals;

static constexpr unsigned short tcpPort = 5454;
static constexpr unsigned short udpPort = 34343;

/// Opens the window and reads the journal of the emulator that it serves.
struct WindowJournal : JournalReader
{
    WindowJournal()
        : JournalReader(journalPath())
    {
        openWindow(*this);
    }
};

static void removeEmulator()
{
    const QPointer<Ravik::Emulator> removed = emulator();
    sdk()->removeEmulator(0);
    waitFor("the emulator to go", [&] { return !removed; });
}

void ConnectionTest::cleanup()
{
    if (!sdk()->emulators().isEmpty())
        stopMachine();
}

void ConnectionTest::testMachineOff()
{
    JournalReader emulatorJournal(journalPath());
    QVERIFY(!machine()->hasPortForwarding(tcpPort, nullptr));
    QSignalSpy viewShowed(contextObject("emulationManagementPlugin"),
                          SIGNAL(emulationManagementViewShowed()));

    chooseAction();
    QString rule;
    QVERIFY(machine()->hasPortForwarding(tcpPort, &rule));
    QCOMPARE(rule, "emulationmanagementtcp");
    QVERIFY(machine()->hasPortForwarding(udpPort, &rule));
    QCOMPARE(rule, "emulationmanagementudp");
    QCOMPARE(machine()->state(), Ravik::VirtualMachine::Starting);
    QVERIFY(!view()->isVisible());

    waitFor("the window", [] { return view()->isVisible(); });
    emulatorJournal.waitForEvent("relay-connected", 0);
    const QList<QJsonObject> entries = emulatorJournal.entriesSince(0);
    const auto ssh = std::ranges::find_if(entries, [](const QJsonObject &entry) {
        return entry.value(u"event").toString() == u"ssh";
    });
    QVERIFY(ssh != entries.end());
    QCOMPARE(ssh->value(u"command").toString(), "rpm -qa");
    QCOMPARE(viewShowed.size(), 0); // it is only for a machine that already runs
}

void ConnectionTest::testMachineStopped()
{
    WindowJournal emulatorJournal;
    stopMachine();
    QVERIFY(!view()->isVisible());

    const qsizetype start = emulatorJournal.position();
    openWindow(emulatorJournal);
    emulatorJournal.waitForEvent("relay-connected", start);
    QCOMPARE(emulatorJournal.countSince(start, "ssh"), 1);

    control("kill");
    waitFor("the window to hide", [] { return !view()->isVisible(); });
}

void ConnectionTest::testMissingPackages()
{
    const MessageBoxAnswers answers(QMessageBox::Close);
    startMachine(); // without the plugin, which would check the packages at once
    control("package without geoclue-emulator");
    control("package without gstreamer-emulator");

    chooseAction();
    const MessageBoxAnswers::Box box = answers.waitForBox();
    QCOMPARE(box.title, "Emulation management plugin");
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(box.buttons, QMessageBox::Close);
    QCOMPARE(box.text, "Necessary packages not found on emulator!");
    QStringList lines = box.informativeText.split('\n');
    QCOMPARE(lines.takeFirst(), "Packages is not installed: ");
    std::ranges::sort(lines);
    QCOMPARE(lines, (QStringList{"", "geoclue-emulator", "gstreamer-emulator"}));
    QVERIFY(!view()->isVisible());

    control("package with geoclue-emulator");
    control("package with gstreamer-emulator");
    showWindow();
    QCOMPARE(answers.boxes().size(), 1);
}

void ConnectionTest::testLinkLostWithoutTrack()
{
    WindowJournal emulatorJournal;
    const MessageBoxAnswers answers(QMessageBox::Ok);
    QSignalSpy disconnected(invoker(), SIGNAL(webSocketDisconnected()));
    control("relay close");
    waitFor("attempts to reconnect", [&] { return disconnected.size() > 5; });
    const qsizetype start = emulatorJournal.position();
    control("relay open");
    emulatorJournal.waitForCall("setTapSensorValue int32:-1", start);
    // every connection but the first tells the emulator which sensors there are
    QVERIFY(emulatorJournal.callsSince(start).contains("enableSensor string:tap"));
    QVERIFY(answers.boxes().isEmpty());
    QVERIFY(view()->isVisible());
}

void ConnectionTest::testWindowBroughtToFront()
{
    const WindowJournal emulatorJournal;
    QObject *camera = contextObject("cameraEmulationManager");
    camera->setProperty("width", 77);
    view()->setWindowStates(Qt::WindowMaximized);
    view()->setWindowStates(Qt::WindowMaximized | Qt::WindowMinimized);
    Core::ICore::mainWindow()->activateWindow();
    waitFor("the IDE to be active", [] { return Core::ICore::mainWindow()->isActiveWindow(); });

    chooseAction();
    waitFor("the window to be active", [] { return view()->isActive(); });
    QCOMPARE(view()->windowStates(), Qt::WindowMaximized);
    QCOMPARE(camera->property("width"), 77);

    view()->close();
    chooseAction();
    QCOMPARE(view()->windowStates(), Qt::WindowMaximized);
    view()->setWindowStates(Qt::WindowNoState);
}

void ConnectionTest::testWindowOpensAgain()
{
    WindowJournal emulatorJournal;
    const qsizetype start = emulatorJournal.position();
    QSignalSpy viewShowed(contextObject("emulationManagementPlugin"),
                          SIGNAL(emulationManagementViewShowed()));
    const QRect available = view()->screen()->availableGeometry();
    const QRect geometry = QRect(available.topLeft(), available.size() / 2).translated(20, 30);
    view()->setGeometry(geometry);
    QMetaObject::invokeMethod(sensorsManager(), "setAlsLuxValue", 77);
    view()->close();
    QCOMPARE(Core::ICore::settings()->value("emulationmanagement/als").toInt(), 77);
    view()->setGeometry(0, 0, 10, 10);
    chooseAction();
    QCOMPARE(view()->geometry(), geometry);
    QCOMPARE(viewShowed.size(), 1);
    QCOMPARE(emulatorJournal.countSince(start, "ssh"), 0); // the packages are not checked again
    waitFor("the pages to fit", [&] { return view()->rootObject()->size() == geometry.size(); });

    view()->setGeometry(QRect(available.center(), 2 * available.size()));
    view()->close();
    chooseAction();
    QVERIFY(available.contains(view()->geometry()));
}

void ConnectionTest::testOpeningInProgress()
{
    static const Utils::Id opening("EmulationManagement.Opening");
    QSignalSpy started(Core::ProgressManager::instance(), &Core::ProgressManager::taskStarted);
    QSignalSpy finished(Core::ProgressManager::instance(),
                        &Core::ProgressManager::allTasksFinished);
    const MessageBoxAnswers answers(QMessageBox::Ok);
    JournalReader emulatorJournal(journalPath());
    const qsizetype start = emulatorJournal.position();

    chooseAction();
    chooseAction();
    QCOMPARE(started.count(QVariantList{QVariant::fromValue(opening)}), 1);
    Core::ProgressManager::cancelTasks(opening);
    waitFor("the machine", [] { return machine()->state() == Ravik::VirtualMachine::Connected; });
    waitFor("the progress to end", [&] { return !finished.isEmpty(); });
    QVERIFY(!view()->isVisible());

    chooseAction(); // now the packages are checked
    auto *timeLimit
        = contextObject("emulationManagementPlugin")->findChild<QTimer *>("openingTimeLimit");
    QVERIFY(timeLimit->isActive());
    timeLimit->start(std::chrono::milliseconds(0));
    QVERIFY(answers.waitForBox().text.contains("has not become ready within 5 minutes"));
    QVERIFY(!view()->isVisible());

    finished.clear();
    showWindow();
    waitFor("the progress to end", [&] { return !finished.isEmpty(); });
    emulatorJournal.waitForEvent("relay-connected", start);
    QCOMPARE(answers.boxes().size(), 1);
}

void ConnectionTest::testMachineJustStarted()
{
    const MessageBoxAnswers answers(QMessageBox::Close);
    machine()->connectTo({}, this, [](bool) {});
    waitFor("the process", [] { return !machine()->isOff(nullptr, nullptr); });
    QVERIFY(machine()->state() != Ravik::VirtualMachine::Connected);
    showWindow();
    QCOMPARE(answers.boxes().size(), 0);
}

// The window opens and keeps its state although a message is open.
void ConnectionTest::testMessageLeftOpen()
{
    startMachine();
    control("package without geoclue-emulator");
    chooseAction();
    waitFor("the message", [] { return QApplication::activeModalWidget(); });
    const QPointer<QWidget> box = QApplication::activeModalWidget();
    control("package with geoclue-emulator");
    showWindow();

    Core::ICore::mainWindow()->activateWindow();
    box->close();
    waitFor("the window to be in front again", [] { return view()->isActive(); });

    view()->setWindowStates(Qt::WindowMinimized);
    QMetaObject::invokeMethod(gpsManager(), "loadTrack", QVariantList());
    QMetaObject::invokeMethod(invoker(), "webSocketDisconnected");
    waitFor("the message", [] { return QApplication::activeModalWidget(); });
    QApplication::activeModalWidget()->close();
    QCOMPARE(view()->windowStates(), Qt::WindowMinimized);
}

void ConnectionTest::testDeviceRestsWhileHidden()
{
    WindowJournal emulatorJournal;
    const WindowDriver driver = WindowDriver::waitForWindow("Emulation Management");
    driver.clickButton("Orientation Management");
    qsizetype start = emulatorJournal.position();
    QTest::keyClick(view(), Qt::Key_Up);
    emulatorJournal.waitForCall("setGyroscopeValues double:10 double:0 double:0", start);
    start = emulatorJournal.position();
    view()->close();
    emulatorJournal.waitForCall("setGyroscopeValues double:0 double:0 double:0", start);
    const QObject *page = QQmlListReference(view()->rootObject(), "pagesIds").at(2);
    const QObjectList children = page->findChildren<QObject *>();
    QVERIFY(std::ranges::none_of(children, [](const QObject *child) {
        return child->inherits("QQmlTimer") && child->property("running").toBool();
    }));
}

void ConnectionTest::testNextEmulatorServed()
{
    sdk()->addEmulator({.name = "Second Emulator", .deviceModel = "Nimbra Lite"});
    removeEmulator();
    const MessageBoxAnswers answers(QMessageBox::Ok);
    QCOMPARE(sensorsManager()->property("sensorsAvailability").toMap().keys(false),
             (QStringList{"proximity", "tap"}));
    showWindow();
    QCOMPARE(answers.boxes().size(), 0);
}

void ConnectionTest::testMachineOnWithoutForwardings()
{
    removeEmulator();
    sdk()->addEmulator({.name = "Bare Emulator", .deviceModel = "Nimbra Phone"});
    startMachine();

    const MessageBoxAnswers answers(QMessageBox::Ok);
    chooseAction();
    const MessageBoxAnswers::Box box = answers.waitForBox();
    QCOMPARE(box.text,
             u"The emulation management plugin cannot be used. Please, close Bare Emulator "
             "and try to use 'Emulation management\u2026' again."_s);
    QCOMPARE(box.textFormat, Qt::PlainText); // the text contains the emulator's name
    QVERIFY(!machine()->hasPortForwarding(tcpPort, nullptr));
    QVERIFY(!machine()->isOff(nullptr, nullptr));
    QVERIFY(!view()->isVisible());
}

void ConnectionTest::testDeviceModelChanged()
{
    QSignalSpy modelChanged(contextObject("smartphone3DModelConfig"),
                            SIGNAL(smartphone3DModelConfigChanged()));
    const auto missingSensors
        = [] { return sensorsManager()->property("sensorsAvailability").toMap().keys(false); };
    sdk()->setDeviceModel(0, "Nimbra Lite"); // a file beside the IDE names its sensors
    QVERIFY(!modelChanged.isEmpty());
    QCOMPARE(missingSensors(), (QStringList{"proximity", "tap"}));
    sdk()->setDeviceModel(0, "Nimbra Tablet");
    QCOMPARE(missingSensors(), QStringList());

    const auto fileOf = [](const char *property) {
        const QString uri = contextObject("smartphone3DModelConfig")->property(property).toString();
        return QFileInfo(QUrl(uri).toLocalFile());
    };
    const QFileInfo mesh = fileOf("smartphone3DModelMeshUri");
    QCOMPARE(mesh.fileName(), "nimbra-tablet.json");
    QVERIFY(mesh.exists());
    QVERIFY(fileOf("smartphone3DModelTextureUri").exists());
    sdk()->setDeviceModel(0, "Nimbra Phone"); // has no mesh of its own
    QCOMPARE(fileOf("smartphone3DModelMeshUri").fileName(), "default.json");
}

void ConnectionTest::testNoEmulator()
{
    removeEmulator();
    const MessageBoxAnswers answers(QMessageBox::Ok);
    chooseAction();
    QCOMPARE(answers.waitForBox().text,
             "The emulation management plugin cannot be used. Please, close the emulator if it is "
             "running and add Nimbra OS Emulator to the list of available devices in Qt Creator "
             "settings.");
    QVERIFY(!view()->isVisible());
}
