#include "tourplugin.h"

#include "pagepictures.h"
#include "tour.h"
#include "tourguide.h"

#include <coreplugin/icore.h>

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

static void runTour()
{
    try {
        if (qEnvironmentVariableIsSet("TOUR_PAGES")) {
            takePagePictures(qEnvironmentVariable("TOUR_PAGES"));
            Core::ICore::exit();
            return;
        }
        TourGuide guide(qEnvironmentVariable("TOUR_PICTURES"));
        takeTour(guide);
        quitIde(guide);
    } catch (const std::exception &error) {
        std::printf("The tour failed: %s\n", error.what());
        QCoreApplication::exit(EXIT_FAILURE);
    }
}

void TourPlugin::extensionsInitialized()
{
    connect(Core::ICore::instance(), &Core::ICore::coreOpened, this, runTour, Qt::QueuedConnection);
}
