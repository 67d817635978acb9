#include "tourplugin.h"

#include "menudriver.h"
#include "pagepictures.h"
#include "say.h"
#include "tour.h"
#include "waiting.h"

#include <coreplugin/icore.h>

#include <utils/filepath.h>

#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QWindow>

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

using namespace Qt::StringLiterals;

/// Quits the IDE as the user does, with the plugin's window open. A signal ends the process if that
/// takes too long.
static void quit()
{
    static constexpr unsigned limit = 5; // s
    alarm(limit);
    auto *mainWindow = qobject_cast<QMainWindow *>(Core::ICore::mainWindow());
    if (qEnvironmentVariableIsSet("TOUR_CLOSE")) {
        say(u"Closing the IDE's window"_s);
        mainWindow->windowHandle()->close();
        return;
    }
    say(u"Choosing File > Exit"_s);
    mainWindow->activateWindow();
    waitFor(u"the IDE's window to be active"_s, [&] { return mainWindow->isActiveWindow(); });
    MenuDriver::choose(MenuDriver::open(mainWindow, {u"File"_s}), u"Exit"_s);
}

static void runTour()
{
    try {
        const QString journal
            = Core::ICore::userResourcePath("emulators/nimbra-os-emulator/journal.jsonl")
                  .toFSPathString();
        if (qEnvironmentVariableIsSet("TOUR_PAGES"))
            PagePictures(qEnvironmentVariable("TOUR_PAGES"), journal).take();
        else
            Tour(qEnvironmentVariable("TOUR_PICTURES"), journal).run();
        quit();
    } catch (const std::exception &error) {
        std::printf("The tour failed: %s\n", error.what());
        QCoreApplication::exit(EXIT_FAILURE);
    }
}

void TourPlugin::extensionsInitialized()
{
    connect(Core::ICore::instance(), &Core::ICore::coreOpened, this, runTour, Qt::QueuedConnection);
}
