#include "tourplugin.h"

#include "pagepictures.h"
#include "tour.h"

#include <coreplugin/icore.h>

#include <utils/filepath.h>

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

static void runTour()
{
    int exitStatus = EXIT_SUCCESS;
    try {
        const QString journal
            = Core::ICore::userResourcePath("emulators/nimbra-os-emulator/journal.jsonl")
                  .toFSPathString();
        if (qEnvironmentVariableIsSet("TOUR_PAGES"))
            PagePictures(qEnvironmentVariable("TOUR_PAGES"), journal).take();
        else
            Tour(qEnvironmentVariable("TOUR_PICTURES"), journal).run();
    } catch (const std::exception &error) {
        std::printf("The tour failed: %s\n", error.what());
        exitStatus = EXIT_FAILURE;
    }
    QCoreApplication::exit(exitStatus);
}

void TourPlugin::extensionsInitialized()
{
    connect(Core::ICore::instance(), &Core::ICore::coreOpened, this, runTour, Qt::QueuedConnection);
}
