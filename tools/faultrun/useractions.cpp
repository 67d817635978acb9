#include "useractions.h"

#include <plugindriver.h>

#include <coreplugin/progressmanager/progressmanager.h>

#include <hostsdk.h>

#include <ravik/virtualmachine.h>

#include <QApplication>
#include <QFile>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <algorithm>

using namespace PluginDriver;
using namespace Qt::StringLiterals;

static RandomAction clickSomewhere(QRandomGenerator &random)
{
    QWindowList windows = QGuiApplication::topLevelWindows();
    windows.removeIf([](const QWindow *window) { // only the plugin's are Qt Quick windows
        return !window->isVisible() || !qobject_cast<const QQuickWindow *>(window);
    });
    if (windows.isEmpty() || QApplication::activeModalWidget())
        return {};
    QWindow *window = oneOf(windows, random);
    const QPoint position(random.bounded(std::max(1, window->width())),
                          random.bounded(std::max(1, window->height())));
    return {u"Click %1 %2"_s.arg(position.x()).arg(position.y()),
            [window, position] { QTest::mouseClick(window, Qt::LeftButton, {}, position); }};
}

static RandomAction dragSomewhere(QRandomGenerator &random)
{
    QQuickView *window = view();
    if (!window->isVisible() || QApplication::activeModalWidget())
        return {};
    const auto position = [&] {
        return QPoint(random.bounded(std::max(1, window->width())),
                      random.bounded(std::max(1, window->height())));
    };
    return {"Drag", [window, from = position(), to = position()] {
                QTest::mousePress(window, Qt::LeftButton, {}, from);
                QTest::mouseMove(window, to);
                QTest::mouseRelease(window, Qt::LeftButton, {}, to);
            }};
}

static RandomAction pressSomeKey(QRandomGenerator &random)
{
    static constexpr Qt::Key keys[]
        = {Qt::Key_Escape, Qt::Key_Escape, Qt::Key_Return, Qt::Key_Tab,
           Qt::Key_Space,  Qt::Key_Down,   Qt::Key_9,      Qt::Key_Minus};
    QWindow *window = QGuiApplication::focusWindow();
    if (!qobject_cast<QQuickWindow *>(window))
        return {};
    const Qt::Key key = oneOf(keys, random);
    return {u"Press %1"_s.arg(key), [window, key] { QTest::keyClick(window, key); }};
}

/// A log that takes seconds to read.
static QString longLog()
{
    static const QTemporaryDir folder;
    QFile log(folder.filePath("long.nmea"));
    if (!log.exists() && log.open(QIODevice::WriteOnly))
        log.write(QByteArray("$GPWPL,6000.00,N,03000.00,E,W*5C\n").repeated(500'000));
    return log.fileName();
}

static void drawDevice(const QString &mesh)
{
    QObject *reader = deviceModelReader();
    if (!reader)
        return;
    const QString texture = DEVICE_MODELS "/textures/nimbra-lite.png";
    QMetaObject::invokeMethod(reader, "read", QUrl::fromLocalFile(mesh).toString(),
                              QUrl::fromLocalFile(texture).toString());
}

static RandomAction useManagers(QRandomGenerator &random, const QString &video)
{
    const QString logs[] = {SAMPLE_TRACK, MEDIA_FOLDER "/vp8.webm", "/nowhere", longLog()};
    const QUrl log = QUrl::fromLocalFile(oneOf(logs, random));
    const QString meshes[] = {DEVICE_MODELS "/meshes/nimbra-lite.json", SAMPLE_TRACK, "/nowhere"};
    const QString mesh = oneOf(meshes, random);
    QObject *camera = contextObject("cameraEmulationManager");
    const RandomAction actions[] = {
        {"Light", [] { QMetaObject::invokeMethod(sensorsManager(), "setAlsLuxValue", 7); }},
        {"Position", [] { QMetaObject::invokeMethod(gpsManager(), "setPosition", 1., 2., 3.); }},
        {"Open a track", [log] { QMetaObject::invokeMethod(gpsPage(), "openFile", log); }},
        {"Cancel the reading",
         [] { Core::ProgressManager::cancelTasks("EmulationManagement.ReadingTrack"); }},
        {"Play the track", [] { QMetaObject::invokeMethod(trackPlayer(), "start"); }},
        {"Draw another device", [mesh] { drawDevice(mesh); }},
        {"Start Video", [=] { QMetaObject::invokeMethod(camera, "startVideoStream", video); }},
        {"Start the camera", [=] { QMetaObject::invokeMethod(camera, "startCameraStream"); }},
        {"Update the cameras", [=] { QMetaObject::invokeMethod(camera, "updateCamerasList"); }},
    };
    return oneOf(actions, random);
}

static RandomAction useSdk(QRandomGenerator &random)
{
    const QString name = u"<b>Emulator</b> & %1"_s.arg(random.bounded(1'000'000));
    const RandomAction actions[] = {
        {"Close the window", [] { view()->close(); }},
        {"Minimise the window", [] { view()->setWindowStates(Qt::WindowMinimized); }},
        {"Maximise the window", [] { view()->setWindowStates(Qt::WindowMaximized); }},
        {"Cancel the opening",
         [] { Core::ProgressManager::cancelTasks("EmulationManagement.Opening"); }},
        {"Stop the machine", [] { machine()->shutDown(); }},
        {"Other models", [] { sdk()->setDeviceModels({"Nimbra Lite", "<b>A & B</b>"}); }},
        {"Other model", [] { sdk()->setDeviceModel(0, "<b>A & B</b>"); }},
        {"Other emulator",
         [name] {
             sdk()->removeEmulator(0);
             sdk()->addEmulator({.name = name, .deviceModel = "Nimbra Lite"});
         }},
    };
    // the last one is chosen seldom, because a new emulator is off
    const int last = int(std::size(actions)) - 1;
    return actions[random.bounded(3) == 0 ? random.bounded(last + 1) : random.bounded(last)];
}

RandomAction nextUserAction(QRandomGenerator &random, const QString &video)
{
    const int kind = random.bounded(13);
    if (kind == 12)
        return dragSomewhere(random);
    if (kind < 4)
        return clickSomewhere(random);
    if (kind < 8)
        return useManagers(random, video);
    if (kind < 10)
        return {"Open the window", chooseAction};
    return kind == 10 ? pressSomeKey(random) : useSdk(random);
}
