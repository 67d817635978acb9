#include "tour.h"

#include "menudriver.h"
#include "pages.h"
#include "tourguide.h"
#include "waiting.h"

#include <QMainWindow>
#include <QMenu>
#include <QWindow>

#include <unistd.h>

using namespace Qt::StringLiterals;

static void openWindow(TourGuide &guide)
{
    guide.begin(u"Choosing Tools > Nimbra OS > Emulation Management…"_s);
    QMenu *menu = MenuDriver::open({u"Tools"_s, u"Nimbra OS"_s});
    guide.takePicture(u"menu"_s);
    MenuDriver::choose(menu, u"Emulation Management…"_s);
    WindowDriver::waitForWindow(u"Emulation Management"_s);
    guide.waitForCall(u"setAccelerometerValues int32:0 int32:0 int32:1000"_s);
    guide.takePicture(u"window"_s);
}

void takeTour(TourGuide &guide)
{
    try {
        openWindow(guide);
        visitSensorsPages(guide);
        visitDeviceModelPage(guide);
        visitGpsPage(guide);
        visitCameraPage(guide);
        visitOutputPane(guide);
    } catch (const WaitingFailed &) {
        guide.takePicture(u"failure"_s);
        throw;
    }
    guide.printAllCalls();
}

void quitIde(TourGuide &guide)
{
    static constexpr unsigned limit = 5; // s
    alarm(limit);
    if (qEnvironmentVariableIsSet("TOUR_CLOSE")) {
        guide.begin(u"Closing the IDE's window"_s);
        MenuDriver::mainWindow()->windowHandle()->close();
        return;
    }
    guide.begin(u"Choosing File > Exit"_s);
    MenuDriver::choose(MenuDriver::open({u"File"_s}), u"Exit"_s);
}
