#include "pages.h"

#include "messageboxanswers.h"
#include "tourguide.h"
#include "waiting.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

static void openPage(TourGuide &guide)
{
    guide.begin(u"Orientation Management: agreeing to reset the values"_s);
    const MessageBoxAnswers answers(QMessageBox::Ok);
    guide.window().clickButton(u"Orientation Management"_s);
    if (answers.boxes().size() != 1)
        throw WaitingFailed("no warning came before the device model's page");
    guide.waitForCall(u"setGyroscopeValues double:0 double:0 double:0"_s);
    guide.window().window()->raise(); // the warning raised the IDE's window
    guide.takePicture(u"device-model"_s);
}

/// A point of the window, by fractions of the drawing's width and height.
static QPoint inDrawing(const TourGuide &guide, double x, double y)
{
    const QQuickItem *area = guide.window().items(u"SmartphoneModelArea"_s).constFirst();
    return area->mapToScene(QPointF(x * area->width(), y * area->height())).toPoint();
}

static void turnDevice(TourGuide &guide)
{
    const WindowDriver &window = guide.window();
    guide.begin(u"Orientation Management: turning by a button, a field and a key"_s);
    window.clickButton(u"X 0°, Y 0°, Z 90°"_s);
    guide.waitForCall(u"setAccelerometerValues int32:1000 int32:0 int32:0"_s);
    window.clickButton(u"X 0°, Y 0°, Z 0°"_s);
    guide.waitForCall(u"setAccelerometerValues int32:0 int32:1000 int32:0"_s);
    window.type(window.items(u"QQuickTextField"_s).constFirst(), u"29"_s);
    QTest::mouseClick(window.window(), Qt::LeftButton, {}, inDrawing(guide, 0.5, 0.5));
    QTest::keyClick(window.window(), Qt::Key_Up); // adds a degree
    guide.waitForCall(u"setAccelerometerValues int32:0 int32:866 int32:-500"_s);
    guide.takePicture(u"device-model-turned"_s);
    window.clickButton(u"X 0°, Y 0°, Z 0°"_s);
}

static void moveDevice(TourGuide &guide)
{
    QQuickWindow *window = guide.window().window();
    guide.begin(u"Orientation Management: moving by the mouse and its wheel"_s);
    guide.window().clickButton(u"Move"_s);
    guide.waitForCall(u"setAccelerometerValues int32:0 int32:1000 int32:0"_s);
    QTest::mousePress(window, Qt::LeftButton, {}, inDrawing(guide, 0.5, 0.5));
    QTest::mouseMove(window, inDrawing(guide, 0.75, 0.25));
    QTest::mouseRelease(window, Qt::LeftButton, {}, inDrawing(guide, 0.75, 0.25));
    QTest::wheelEvent(window, inDrawing(guide, 0.5, 0.5), QPoint(0, 120));
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
