#include "quitscenario.h"

#include <plugindriver.h>
#include <waiting.h>

#include <coreplugin/actionmanager/actionmanager.h>
#include <coreplugin/actionmanager/command.h>
#include <coreplugin/coreconstants.h>
#include <coreplugin/icore.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QHash>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>
#include <QUrl>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <functional>

#include <unistd.h>

using namespace PluginDriver;
using namespace Qt::StringLiterals;

static constexpr unsigned quitLimit = 10; // s

static void openTool()
{
    JournalReader journal(journalPath());
    openWindow(journal);
}

static void playTrack()
{
    openTool();
    QMetaObject::invokeMethod(gpsPage(), "openFile", QUrl::fromLocalFile(TEST_DATA "/gga.nmea"));
    waitFor("the track", [] { return gpsManager()->property("trackLoaded").toBool(); });
    QMetaObject::invokeMethod(trackPlayer(), "start");
    waitFor("the track to play",
            [] { return gpsManager()->property("currentPositionIndex").toInt() > 0; });
}

static void playVideo()
{
    openTool();
    QMetaObject::invokeMethod(contextObject("cameraEmulationManager"), "startVideoStream",
                              u"" MEDIA_FOLDER "/vp8.webm"_s);
}

static void readTrack()
{
    openTool();
    static const QTemporaryDir folder;
    QFile log(folder.filePath("long.nmea"));
    if (log.open(QIODevice::WriteOnly))
        log.write(QByteArray("$GPWPL,6000.00,N,03000.00,E,W*5C\n").repeated(1'000'000));
    log.close();
    QMetaObject::invokeMethod(gpsPage(), "openFile", QUrl::fromLocalFile(log.fileName()));
    const auto *reader = gpsPage()->property("trackReader").value<QObject *>();
    waitFor("the progress bar", [&] { return reader->property("takingLong").toBool(); });
}

static void checkPackages()
{
    startMachine();
    chooseAction();
}

static void showError()
{
    openTool();
    QObject *dialog = errorDialog();
    QMetaObject::invokeMethod(dialog, "show", u"It is broken"_s);
    waitFor("the dialog", [&] { return dialog->property("visible").toBool(); });
}

static void loseLink()
{
    playTrack();
    control("relay close");
    waitFor("the message", [] { return QApplication::activeModalWidget() != nullptr; });
}

void playQuitScenario(const QByteArray &name, const QByteArray &manner)
{
    static const QHash<QByteArray, std::function<void()>> preparations = {
        {"values", openTool},     {"track", playTrack},       {"video", playVideo},
        {"check", checkPackages}, {"starting", chooseAction}, {"error", showError},
        {"message", loseLink},    {"reading", readTrack},
    };
    try {
        emulator(); // waits, because the SDK lists it shortly after the IDE has opened
        preparations.value(name)();
    } catch (const WaitingFailed &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        std::_Exit(EXIT_FAILURE);
    }
    QMetaObject::invokeMethod(sensorsManager(), "setAlsLuxValue", 1234);
    alarm(quitLimit);
    if (manner == "menu")
        Core::ActionManager::command(Core::Constants::EXIT)->action()->trigger();
    else
        Core::ICore::mainWindow()->close();
}
