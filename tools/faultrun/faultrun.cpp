#include "faultrun.h"

#include <plugindriver.h>
#include <virtualcameras.h>
#include <waiting.h>

#include <coreplugin/actionmanager/actionmanager.h>
#include <coreplugin/actionmanager/command.h>
#include <coreplugin/coreconstants.h>
#include <coreplugin/icore.h>
#include <coreplugin/progressmanager/progressmanager.h>

#include <extensionsystem/pluginmanager.h>

#include <hostsdk.h>

#include <ravik/emulator.h>
#include <ravik/virtualmachine.h>

#include <utils/filepath.h>
#include <utils/qtcsettings.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QMessageBox>
#include <QQmlListReference>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QUdpSocket>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <functional>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace PluginDriver;
using namespace std::chrono_literals;

static constexpr std::chrono::milliseconds gapLimit = 2s;
// What finding out the codec of a video file may take.
static constexpr std::chrono::milliseconds codecCheckLimit = 2s;
static constexpr int longestPause = 100; // ms between two actions

static std::chrono::seconds duration()
{
    bool ok = false;
    const int seconds = qEnvironmentVariableIntValue("FAULT_SECONDS", &ok);
    return ok ? std::chrono::seconds(seconds) : 20s;
}

static unsigned seed()
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue("FAULT_SEED", &ok);
    return ok ? unsigned(value) : std::random_device()() / 2; // to fit into the variable
}

// Of the IDE and of the programs that it starts: what goes beyond is not written.
static void limitFileSize(rlim_t size)
{
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(size, limit.rlim_max);
    setrlimit(RLIMIT_FSIZE, &limit);
}

FaultRun::FaultRun()
{
    m_watch.setTimerType(Qt::PreciseTimer);
    m_watch.setInterval(10ms);
    connect(&m_watch, &QTimer::timeout, this, &FaultRun::measureGap);
    m_boxTimer.setInterval(200ms);
    connect(&m_boxTimer, &QTimer::timeout, this, &FaultRun::answerMessageBox);
}

FaultRun::~FaultRun() = default;

void FaultRun::initTestCase()
{
    std::signal(SIGXFSZ, SIG_IGN);
    m_cameras = std::make_unique<VirtualCameras>();
    QVERIFY(QFile::copy(QStringLiteral(MEDIA_FOLDER "/vp8.webm"), m_folder.filePath("video.webm")));
}

int FaultRun::number(int end)
{
    return std::uniform_int_distribution(0, end - 1)(m_random);
}

void FaultRun::testRandomFaults()
{
    const unsigned runSeed = seed();
    qInfo("Seed %u, %d seconds", runSeed, int(duration().count()));
    m_random.seed(runSeed);
    QSignalSpy links(invoker(), SIGNAL(webSocketConnected()));
    QSignalSpy replies(sensorsManager(), SIGNAL(replyFromEmulatorReceived(QString)));
    m_sinceWatch.start();
    m_watch.start();
    m_boxTimer.start();
    m_running = true;
    actSoon();
    QTest::qWait(duration());
    if (qEnvironmentVariableIsSet("FAULT_QUIT"))
        quit();
    m_running = false;
    qInfo(
        "%d actions, %d connections, %d replies; the event loop stood still for %d ms at most: %s",
        m_actionCount, int(links.size()), int(replies.size()), int(m_longestGap.count()),
        qPrintable(m_longestAction));
    if (!qEnvironmentVariableIsSet("FAULT_QUIT"))
        checkThatAllWorks();
    m_watch.stop();
    m_boxTimer.stop();
    QVERIFY2(m_longestGap <= gapLimit, qPrintable(m_longestAction));
}

void FaultRun::checkThatAllWorks()
{
    m_action = "the end";
    makeGood();
    // whatever the emulator was asked for ends with it
    waitFor("message boxes to close", [] { return !QApplication::activeModalWidget(); });
    stopMachine();
    waitFor("the machine to settle", [] {
        return machine()->state() == Ravik::VirtualMachine::Disconnected
               || machine()->state() == Ravik::VirtualMachine::Error;
    });
    m_watch.stop();

    JournalReader journal(journalPath());
    openWindow(journal);
    const qsizetype start = journal.position();
    QMetaObject::invokeMethod(sensorsManager(), "setAlsLuxValue", 4321);
    journal.waitForCall("setAlsValue int32:4321", start);
    stopMachine();
}

// In the middle of everything but an IDE that cannot write its settings: it asks what to do then.
void FaultRun::quit()
{
    static constexpr unsigned limit = 10; // s until the process is gone
    waitFor("message boxes to close", [] { return !QApplication::activeModalWidget(); });
    m_running = false;
    makeGood();
    begin("Quit");
    alarm(limit);
    Core::ActionManager::command(Core::Constants::EXIT)->action()->trigger();
    waitFor("the IDE's window to close", [] { return !Core::ICore::mainWindow()->isVisible(); });
}

void FaultRun::measureGap()
{
    const std::chrono::milliseconds gap(m_sinceWatch.restart());
    const auto counted = gap - (m_action.contains("Video") ? codecCheckLimit : 0ms);
    if (counted <= m_longestGap)
        return;
    m_longestGap = counted;
    m_longestAction = m_action;
}

void FaultRun::actSoon()
{
    // a timer of its own each time: a message box that an action opens is no end of actions
    if (m_running)
        QTimer::singleShot(number(longestPause), this, &FaultRun::act);
}

void FaultRun::act()
{
    if (!m_running)
        return;
    actSoon();
    ++m_actionCount;
    using Action = void (FaultRun::*)();
    static constexpr Action actions[] = {
        &FaultRun::askEmulatorForFault,
        &FaultRun::askEmulatorForFault,
        &FaultRun::askEmulatorForFault,
        &FaultRun::takeOrFreePort,
        &FaultRun::fillOrFreeDisk,
        &FaultRun::replaceVideo,
        &FaultRun::lockOrUnlockSettings,
        &FaultRun::plugCameras,
        &FaultRun::clickSomewhere,
        &FaultRun::clickSomewhere,
        &FaultRun::clickSomewhere,
        &FaultRun::clickSomewhere,
        &FaultRun::pressSomeKey,
        &FaultRun::useManagers,
        &FaultRun::useManagers,
        &FaultRun::useManagers,
        &FaultRun::useManagers,
        &FaultRun::useMenu,
        &FaultRun::useMenu,
        &FaultRun::useSdk,
    };
    (this->*one(actions))();
}

void FaultRun::answerMessageBox()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (box && !box->buttons().isEmpty())
        box->buttons().at(number(int(box->buttons().size())))->click();
}

void FaultRun::begin(const QString &action)
{
    m_action = action.left(100);
    // at once: if the action never ends, it is the last one that is told
    std::fprintf(stderr, "%s\n", qPrintable(m_action));
}

void FaultRun::askEmulatorForFault()
{
    static constexpr const char *faults[] = {
        "kill",
        "freeze 100",
        "freeze 3000",
        "relay close",
        "relay open",
        "relay open",
        "relay delay 0",
        "relay delay 700",
        "relay answer ",
        "relay answer :::::::::",
        "relay answer <img src='http://127.0.0.1:5454/x.png'>",
        "relay answer enabled:|||tap|als:1::",
        "relay answer x:y:z:org.vexa.Error:<b>text</b>",
        "relay repeat 64000000 x",
        "relay repeat 64000000 :",
        "relay repeat 70000000 x",
        "relay repeat 8000000 <b>line\\</b>",
        "fail stopTrack org.vexa.Error.Broken It is broken",
        "fail stopTrack",
        "fail setAlsValue org.vexa.Error.Broken",
        "fail setAlsValue",
        "service without org.vexa.GeoclueEmulationManagement",
        "service with org.vexa.GeoclueEmulationManagement",
        "service without org.vexa.SensorfwEmulationManagement",
        "service with org.vexa.SensorfwEmulationManagement",
        "package without geoclue-emulator",
        "package with geoclue-emulator",
        "package with geoclue-emulator",
    };
    const char *fault = one(faults);
    if (fault == faults[0] && number(3) > 0)
        return; // an emulator that lives for a while meets more
    begin(QString::fromLatin1(fault));
    // nobody waits for the answer: the emulator may be off or frozen
    auto *socket = new QLocalSocket(this);
    connect(socket, &QLocalSocket::errorOccurred, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::readyRead, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::connected, socket,
            [socket, fault] { socket->write(QByteArray(fault) + '\n'); });
    socket->connectToServer(dataFolder() + "/control");
}

void FaultRun::takeOrFreePort()
{
    if (m_tcpPort || m_udpPort) {
        begin("Free the port");
        m_tcpPort.reset();
        m_udpPort.reset();
        return;
    }
    static constexpr quint16 ports[] = {5454, 2223, 34343};
    const quint16 port = one(ports);
    begin(QStringLiteral("Take port %1").arg(port));
    if (port == 34343) {
        m_udpPort = std::make_unique<QUdpSocket>();
        m_udpPort->bind(QHostAddress::LocalHost, port);
        return;
    }
    m_tcpPort = std::make_unique<QTcpServer>();
    const int manner = number(3);
    connect(m_tcpPort.get(), &QTcpServer::newConnection, this, [this, manner] {
        while (QTcpSocket *client = m_tcpPort->nextPendingConnection()) {
            connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
            if (manner == 0)
                client->write(QByteArray(1 << 20, 'x'));
            else if (manner == 1)
                client->disconnectFromHost();
        }
    });
    m_tcpPort->listen(QHostAddress::LocalHost, port);
}

void FaultRun::fillOrFreeDisk()
{
    m_diskFull = !m_diskFull;
    begin(m_diskFull ? "Fill the disk" : "Free the disk");
    limitFileSize(m_diskFull ? 0 : RLIM_INFINITY);
}

// Files that cannot be replaced: there are folders in their place. Root may write to all others.
void FaultRun::lockOrUnlockSettings()
{
    m_settingsLocked = !m_settingsLocked;
    begin(QString::fromLatin1(m_settingsLocked ? "Lock the settings" : "Unlock the settings"));
    const QString files[] = {ExtensionSystem::PluginManager::settings()->fileName(),
                             Core::ICore::userResourcePath("nimbra-sdk.ini").toFSPathString()};
    for (const QString &file : files) {
        const QString aside = file + ".aside";
        if (m_settingsLocked) {
            QFile::rename(file, aside);
            QDir().mkpath(file + "/in-the-way");
        } else {
            QDir(file).removeRecursively();
            QFile::rename(aside, file);
        }
    }
}

void FaultRun::replaceVideo()
{
    const QString path = m_folder.filePath("video.webm");
    const int manner = number(5);
    begin(QStringLiteral("Replace the file of the stream, %1").arg(manner));
    if (manner == 0) {
        QFile::resize(path, 10'000);
        return;
    }
    QFile::remove(path);
    switch (manner) {
    case 1:
        QFile::copy(MEDIA_FOLDER "/vp8.webm", path);
        break;
    case 2:
        QFile::copy(MEDIA_FOLDER "/motion-jpeg.mkv", path);
        break;
    case 3:
        mkfifo(path.toLocal8Bit().constData(), S_IRUSR | S_IWUSR);
        break;
    default:
        break;
    }
}

void FaultRun::plugCameras()
{
    static const QByteArray cameras[] = {
        "A & <img src=x> | device=/dev/a | video/x-raw,width=64,height=48,framerate=30/1",
        "Ranges | device=/dev/b | "
        "video/x-raw,width=[1,9999],height=48,framerate=[0/1,2147483647/1]",
        "Nothing | | video/x-raw",
    };
    begin("Plug cameras");
    limitFileSize(RLIM_INFINITY); // this file is no part of what the disk is full for
    m_cameras->set(number(4) == 0 ? QByteArrayList() : QByteArrayList{one(cameras), one(cameras)});
    limitFileSize(m_diskFull ? 0 : RLIM_INFINITY);
}

void FaultRun::clickSomewhere()
{
    QWindowList windows;
    const QWindowList all = QGuiApplication::topLevelWindows();
    for (QWindow *window : all) {
        // the tool's and those of its dialogs
        if (window->isVisible() && qobject_cast<QQuickWindow *>(window))
            windows << window;
    }
    if (windows.isEmpty() || QApplication::activeModalWidget())
        return;
    auto *window = static_cast<QQuickWindow *>(windows.at(number(int(windows.size()))));
    const QPoint position(number(std::max(1, window->width())),
                          number(std::max(1, window->height())));
    begin(QStringLiteral("Click %1 %2").arg(position.x()).arg(position.y()));
    QTest::mouseClick(window, Qt::LeftButton, {}, position);
}

void FaultRun::pressSomeKey()
{
    static constexpr Qt::Key keys[]
        = {Qt::Key_Escape, Qt::Key_Escape, Qt::Key_Return, Qt::Key_Tab,
           Qt::Key_Space,  Qt::Key_Down,   Qt::Key_9,      Qt::Key_Minus};
    QWindow *window = QGuiApplication::focusWindow();
    if (!qobject_cast<QQuickWindow *>(window))
        return;
    const Qt::Key key = one(keys);
    begin(QStringLiteral("Press %1").arg(key));
    QTest::keyClick(window, key);
}

static QObject *trackPlayer(const QObject *gpsPage)
{
    const QObjectList children = gpsPage->findChildren<QObject *>();
    const auto player = std::ranges::find_if(children, [](const QObject *child) {
        return QByteArrayView(child->metaObject()->className()).startsWith("TrackPlayer_QML");
    });
    if (player == children.end())
        qFatal("The page has no player");
    return *player;
}

void FaultRun::useManagers()
{
    static constexpr qsizetype gpsPage = 3;
    QObject *camera = contextObject("cameraEmulationManager");
    QObject *page = QQmlListReference(view()->rootObject(), "pagesIds").at(gpsPage);
    static constexpr const char *logs[] = {SAMPLE_TRACK, MEDIA_FOLDER "/vp8.webm", "/nowhere"};
    const QList<std::pair<const char *, std::function<void()>>> uses = {
        {"Light", [&] { QMetaObject::invokeMethod(sensorsManager(), "setAlsLuxValue", 7); }},
        {"Position", [&] { QMetaObject::invokeMethod(gpsManager(), "setPosition", 1., 2., 3.); }},
        {"Open a track",
         [&] {
             QMetaObject::invokeMethod(page, "openFile",
                                       QUrl::fromLocalFile(QString::fromLatin1(one(logs))));
         }},
        {"Play the track", [&] { QMetaObject::invokeMethod(trackPlayer(page), "start"); }},
        {"Start Video",
         [&] {
             QMetaObject::invokeMethod(camera, "startVideoStream", m_folder.filePath("video.webm"));
         }},
        {"Start the camera", [&] { QMetaObject::invokeMethod(camera, "startCameraStream"); }},
        {"Update the cameras", [&] { QMetaObject::invokeMethod(camera, "updateCamerasList"); }},
    };
    const auto &[name, use] = uses.at(number(int(uses.size())));
    begin(QString::fromLatin1(name));
    use();
}

void FaultRun::useMenu()
{
    begin("Open the window");
    chooseAction();
}

void FaultRun::useSdk()
{
    const QList<std::pair<const char *, std::function<void()>>> uses = {
        {"Close the window", [] { view()->close(); }},
        {"Minimise the window", [] { view()->setWindowStates(Qt::WindowMinimized); }},
        {"Maximise the window", [] { view()->setWindowStates(Qt::WindowMaximized); }},
        {"Cancel the opening",
         [] { Core::ProgressManager::cancelTasks("EmulationManagement.Opening"); }},
        {"Stop the machine", [] { machine()->shutDown(); }},
        {"Other models", [] { sdk()->setDeviceModels({"Nimbra Lite", "<b>A & B</b>"}); }},
        {"Other model", [] { sdk()->setDeviceModel(0, "<b>A & B</b>"); }},
        {"Other emulator",
         [this] {
             if (number(3) > 0)
                 return;
             sdk()->removeEmulator(0);
             const QString name = QStringLiteral("<b>Emulator</b> & %1").arg(m_actionCount);
             sdk()->addEmulator({.name = name, .deviceModel = "Nimbra Lite"});
         }},
    };
    const auto &[name, use] = uses.at(number(int(uses.size())));
    begin(QString::fromLatin1(name));
    use();
}

void FaultRun::makeGood()
{
    if (m_diskFull)
        fillOrFreeDisk();
    if (m_settingsLocked)
        lockOrUnlockSettings();
    m_tcpPort.reset();
    m_udpPort.reset();
}
