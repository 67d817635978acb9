#include "pages.h"

#include "devicepagedriver.h"
#include "messageboxanswers.h"
#include "tourguide.h"
#include "waiting.h"

#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

static void openPage(TourGuide &guide)
{
    guide.begin(u"Orientation Management: agreeing to reset the values"_s);
    const MessageBoxAnswers answers(QMessageBox::Ok);
    DevicePageDriver(guide.window()).show();
    if (answers.boxes().size() != 1)
        throw WaitingFailed("no warning came before the device model's page");
    guide.waitForCall(u"setGyroscopeValues double:0 double:0 double:0"_s);
    guide.window().window()->raise(); // the warning raised the IDE's window
    guide.takePicture(u"device-model"_s);
}

static void turnDevice(TourGuide &guide)
{
    const WindowDriver &window = guide.window();
    const DevicePageDriver page(window);
    guide.begin(u"Orientation Management: turning by a button, a field and a key"_s);
    window.clickButton(u"X 0°, Y 0°, Z 90°"_s);
    guide.waitForCall(u"setAccelerometerValues int32:1000 int32:0 int32:0"_s);
    window.clickButton(u"X 0°, Y 0°, Z 0°"_s);
    guide.waitForCall(u"setAccelerometerValues int32:0 int32:1000 int32:0"_s);
    window.type(window.items(u"QQuickTextField"_s).constFirst(), u"29"_s);
    QTest::mouseClick(window.window(), Qt::LeftButton, {}, page.at(0.5, 0.5));
    QTest::keyClick(window.window(), Qt::Key_Up); // adds a degree
    guide.waitForCall(u"setAccelerometerValues int32:0 int32:866 int32:-500"_s);
    guide.takePicture(u"device-model-turned"_s);

    guide.begin(u"Orientation Management: turning by the mouse, and upright by a double click"_s);
    const QPoint start = page.at(0.75, 0.4);
    QTest::mousePress(window.window(), Qt::LeftButton, {}, start);
    QTest::mouseMove(window.window(), start + QPoint(0, 60)); // a degree for two pixels
    QTest::mouseRelease(window.window(), Qt::LeftButton, {}, start + QPoint(0, 60));
    guide.waitForCall(u"setAccelerometerValues int32:0 int32:500 int32:-866"_s);
    page.drag({{0.6, 0.6}, {0.7, 0.6}, {0.8, 0.5}, {0.9, 0.5}});
    guide.takePicture(u"device-model-turned-by-mouse"_s);
    QTest::mouseDClick(window.window(), Qt::LeftButton, {}, page.at(0.5, 0.5));
    guide.waitForCall(u"setAccelerometerValues int32:0 int32:1000 int32:0"_s);
}

static void moveDevice(TourGuide &guide)
{
    QQuickWindow *window = guide.window().window();
    const DevicePageDriver page(guide.window());
    guide.begin(u"Orientation Management: moving by the mouse and its wheel"_s);
    guide.window().clickButton(u"Move"_s);
    guide.waitForCall(u"setAccelerometerValues int32:0 int32:1000 int32:0"_s);
    page.drag({{0.5, 0.5}, {0.75, 0.25}});
    QTest::wheelEvent(window, page.at(0.5, 0.5), QPoint(0, 120));
    waitFor(u"the emulator to be pushed to one side and stopped"_s, [&] {
        // a device that is neither turned nor pushed has no acceleration along the x axis
        const QStringList calls = guide.calls().filter(u"setAccelerometerValues "_s);
        const QStringList stops = calls.filter(u"setAccelerometerValues int32:-"_s);
        const QStringList rests = calls.filter(u"setAccelerometerValues int32:0 "_s);
        return !stops.isEmpty() && calls.size() > stops.size() + rests.size();
    });
    guide.takePicture(u"device-model-moved"_s);
    guide.window().clickButton(u"Rotation"_s);
}

void visitDeviceModelPage(TourGuide &guide)
{
    openPage(guide);
    turnDevice(guide);
    moveDevice(guide);
}
