#include "pages.h"

#include "menudriver.h"
#include "tourguide.h"
#include "waiting.h"

#include <QMenu>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

/// The first control of a class in the frame of a sensor.
static QQuickItem *control(const TourGuide &guide, const QString &frame, const QString &className)
{
    const WindowDriver &window = guide.window();
    return window.items(className, window.item(u"SensorControls"_s, "title", frame)).constFirst();
}

static void switchSensors(TourGuide &guide)
{
    guide.begin(u"Sensors Management: switching sensors off and on"_s);
    guide.window().clickButton(u"Sensors Management"_s);
    guide.takePicture(u"sensors-management"_s);
    // the accelerometer's box also clears those of the compass and the orientation sensor
    for (const auto &box : {u"Accelerometer"_s, u"Tap Sensor"_s})
        guide.window().clickButton(box);
    guide.takePicture(u"sensors-management-changed"_s);
    guide.window().clickButton(u"Apply"_s);
    for (const auto &sensor : {u"accelerometer"_s, u"compass"_s, u"orientation"_s, u"tap"_s})
        guide.waitForCall(u"disableSensor string:"_s + sensor);
    guide.window().clickButton(u"Sensors Values"_s);
    guide.takePicture(u"sensors-values-off"_s);

    guide.window().clickButton(u"Sensors Management"_s);
    // the compass's box also ticks the accelerometer's
    for (const auto &box : {u"Compass"_s, u"Orientation Sensor"_s, u"Tap Sensor"_s})
        guide.window().clickButton(box);
    guide.window().clickButton(u"Apply"_s);
    for (const auto &sensor : {u"accelerometer"_s, u"compass"_s, u"orientation"_s, u"tap"_s})
        guide.waitForCall(u"enableSensor string:"_s + sensor);
}

static void chooseDeviceModel(TourGuide &guide, const QString &name, bool hasTapSensor)
{
    MenuDriver::choose(MenuDriver::open({u"Tools"_s, u"Nimbra OS"_s, u"Device Model"_s}), name);
    guide.window().clickButton(u"Sensors Values"_s);
    waitFor(u"the sensors of %1"_s.arg(name), [&] {
        const QList<QQuickItem *> frames = guide.window().items(u"SensorControls"_s);
        return std::ranges::any_of(frames,
                                   [](const QQuickItem *frame) {
                                       return frame->property("title").toString() == u"Tap Sensor";
                                   })
               == hasTapSensor;
    });
}

static void setValues(TourGuide &guide)
{
    const WindowDriver &window = guide.window();
    guide.begin(u"Sensors Values: dragging, typing, choosing, clicking, and resetting all"_s);
    const QQuickItem *slider = control(guide, u"Accelerometer"_s, u"QQuickSlider"_s);
    window.drag(slider, 0.75);
    static constexpr double unitsPerG = 1000;
    guide.waitForCall(u"setAccelerometerX int32:%1"_s.arg(
        qRound(slider->property("value").toDouble() * unitsPerG)));
    window.type(control(guide, u"Gyroscope"_s, u"QQuickTextField"_s), u"-2.5"_s);
    guide.waitForCall(u"setGyroscopeX double:-2.5"_s);
    window.choose(control(guide, u"Orientation Sensor"_s, u"QQuickComboBox"_s), u"TopDown"_s);
    guide.waitForCall(u"setAccelerometerValues int32:0 int32:-100 int32:0"_s);
    window.clickButton(u"Near"_s);
    guide.waitForCall(u"setProximitySensorValue int32:0"_s);
    guide.takePicture(u"sensors-values"_s);
    window.clickButton(u"Reset values"_s);
    guide.waitForCall(u"setAccelerometerValues int32:0 int32:0 int32:1000"_s);
    guide.waitForCall(u"setProximitySensorValue int32:5"_s);

    const QSize size = window.window()->size();
    window.window()->resize(size * 2 / 3);
    guide.takePicture(u"sensors-values-small"_s);
    window.window()->resize(size);
}

void visitSensorsPages(TourGuide &guide)
{
    switchSensors(guide);
    guide.begin(u"Choosing a device model without proximity and tap sensor, and back"_s);
    chooseDeviceModel(guide, u"Nimbra Lite"_s, false);
    guide.takePicture(u"sensors-values-fewer"_s);
    chooseDeviceModel(guide, u"Nimbra Phone"_s, true);
    setValues(guide);
}
