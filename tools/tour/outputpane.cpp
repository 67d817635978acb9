#include "pages.h"

#include "outputpanedriver.h"
#include "tourguide.h"

#include <QQuickWindow>

using namespace Qt::StringLiterals;

void visitOutputPane(TourGuide &guide)
{
    guide.begin(u"Output pane Emulation: playing a recording"_s);
    OutputPaneDriver::show();
    guide.takePicture(u"output-pane"_s);
    OutputPaneDriver::click(u"Play…"_s);
    OutputPaneDriver::chooseFile(SAMPLE_RECORDING);
    guide.waitForCall(u"goToPositionOnTrack int32:0"_s);
    guide.window().window()->raise(); // it says that a recording is playing
    guide.takePicture(u"recording-playing"_s);
    guide.waitForCall(u"stopTrack "_s);
}
