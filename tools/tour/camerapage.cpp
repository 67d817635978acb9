#include "pages.h"

#include "tourguide.h"
#include "waiting.h"

#include <QDir>
#include <QFile>
#include <QQuickItem>

using namespace Qt::StringLiterals;

static void streamCameras(TourGuide &guide)
{
    const WindowDriver &window = guide.window();
    guide.begin(u"Camera Management: streaming two cameras, and unplugging both"_s);
    window.clickButton(u"Camera Management"_s);
    window.clickButton(u"Start stream"_s);
    guide.waitForVideo({640, 480});
    guide.takePicture(u"camera-streaming"_s);
    window.choose(window.items(u"QQuickComboBox"_s).at(0), u"Rear Camera"_s);
    guide.takePicture(u"camera-chosen"_s);
    window.clickButton(u"Set settings"_s);
    guide.waitForVideo({1280, 720});
    guide.takePicture(u"camera-settings-applied"_s);

    QFile cameras(qEnvironmentVariable("VIRTUAL_CAMERAS"));
    if (!cameras.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw WaitingFailed("the virtual cameras cannot be unplugged");
    guide.waitForEvent(u"video-ended"_s);
    waitFor(u"the video file to be the source"_s, [&] {
        return window.item(u"QQuickRadioButton"_s, "text", u"Video file"_s)
            ->property("checked")
            .toBool();
    });
    guide.takePicture(u"camera-none"_s);
}

static void chooseFile(TourGuide &guide, const QString &name)
{
    guide.begin(u"Camera Management: choosing the file "_s + name);
    // the dialog opens in this folder
    QDir::setCurrent(qEnvironmentVariable("TOUR_VIDEOS"));
    guide.window().clickButton(u"…"_s);
    const WindowDriver dialog = WindowDriver::waitForFileDialog();
    dialog.click(dialog.item(u"QQuickFileDialogDelegate"_s, "fileName", name));
    guide.takePicture(u"camera-file-dialog"_s);
    dialog.clickButton(u"Open"_s);
}

void visitCameraPage(TourGuide &guide)
{
    streamCameras(guide);
    chooseFile(guide, u"motion-jpeg.mkv"_s);
    // the file is refused, with a message
    const QQuickItem *button = guide.window().item(u"QQuickAbstractButton"_s, "text", u"OK"_s);
    guide.takePicture(u"camera-video-refused"_s);
    guide.window().click(button);
    chooseFile(guide, u"vp9.webm"_s);
    guide.waitForVideo({320, 240});
    guide.takePicture(u"camera-video-file"_s);
    guide.begin(u"Camera Management: leaving the page ends the stream"_s);
    guide.window().clickButton(u"Sensors Values"_s);
    guide.waitForEvent(u"video-ended"_s);
}
