#include "sensorstour.h"

#include "waiting.h"

#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

/// A slider with its text field.
struct SensorsTour::Field
{
    const char *frame;
    int index; ///< within the frame
    double fraction; ///< of the slider's way
    const char *text;
    const char *method;
    const char *type;
    double multiplier; ///< from the shown value to the sent one
};

/// The entries of a combo box, each with the call that choosing it makes.
struct SensorsTour::Choice
{
    const char *frame;
    QList<std::pair<const char *, const char *>> entries;
};

// All sensors, in the order of the boxes.
static constexpr std::array sensors = {"accelerometer", "compass", "orientation", "magnetometer",
                                       "gyroscope",     "als",     "proximity",   "tap"};

static QString number(double shown, const char *type, double multiplier)
{
    const double sent = shown * multiplier;
    return qstrcmp(type, "int32") == 0 ? QString::number(qRound(sent)) : QString::number(sent);
}

/// The call that makes the device point at \a azimuth degrees.
static QString compassCall(int azimuth)
{
    static constexpr double fluxDensity = 4.358898943540674e-05; // tesla
    const double angle = -azimuth * std::numbers::pi / 180;
    return u"setMagnetometerValues double:%1 double:%2 double:0"_s
        .arg(std::sin(angle) * fluxDensity)
        .arg(std::cos(angle) * fluxDensity);
}

static QString callFor(const char *method, const char *type, double multiplier, double shown)
{
    if (qstrcmp(method, "setCompassAzimuth") == 0)
        return compassCall(qRound(shown));
    return u"%1 %2:%3"_s.arg(QLatin1StringView(method), QLatin1StringView(type),
                             number(shown, type, multiplier));
}

SensorsTour::SensorsTour(const WindowDriver &driver, JournalReader &journal,
                         std::function<void(const QString &)> takePicture)
    : m_driver(driver)
    , m_journal(journal)
    , m_takePicture(std::move(takePicture))
{}

static QQuickItem *frameOf(const WindowDriver &driver, const char *title)
{
    return driver.item(u"SensorControls"_s, "title", QLatin1StringView(title));
}

static QQuickItem *partOf(const WindowDriver &driver, const char *frame, const char *className,
                          int index)
{
    return driver.items(QLatin1StringView(className), frameOf(driver, frame)).at(index);
}

void SensorsTour::visitManagement()
{
    for (const char *sensor : sensors)
        m_journal.waitForCall(u"enabled string:%1"_s.arg(QLatin1StringView(sensor)), 0);

    m_driver.clickButton(u"Sensors Management"_s);
    m_takePicture(u"sensors-management"_s);
    // the accelerometer's box also clears those of the compass and the orientation
    for (const char *box : {"Accelerometer", "Magnetometer", "Gyroscope", "Light Sensor",
                            "Proximity Sensor", "Tap Sensor"})
        m_driver.clickButton(QLatin1StringView(box));
    m_takePicture(u"sensors-management-changed"_s);
    m_driver.clickButton(u"Reset"_s);
    m_driver.clickButton(u"Accelerometer"_s);
    m_driver.clickButton(u"Magnetometer"_s);
    for (const char *box : {"Gyroscope", "Light Sensor", "Proximity Sensor", "Tap Sensor"})
        m_driver.clickButton(QLatin1StringView(box));
    applyAll(false);
    m_driver.clickButton(u"Sensors Values"_s);
    m_takePicture(u"sensors-values-off"_s);

    m_driver.clickButton(u"Sensors Management"_s);
    // the compass's box also ticks those of the accelerometer and the magnetometer
    for (const char *box : {"Compass", "Orientation Sensor", "Gyroscope", "Light Sensor",
                            "Proximity Sensor", "Tap Sensor"})
        m_driver.clickButton(QLatin1StringView(box));
    applyAll(true);
}

void SensorsTour::applyAll(bool enabled)
{
    const qsizetype start = m_journal.position();
    m_driver.clickButton(u"Apply"_s);
    for (const char *sensor : sensors) {
        m_journal.waitForCall(
            u"%1 string:%2"_s.arg(enabled ? u"enableSensor"_s : u"disableSensor"_s,
                                  QLatin1StringView(sensor)),
            start);
    }
}

void SensorsTour::visitValues()
{
    static constexpr Field fields[] = {
        {"Accelerometer", 0, 0.75, "-2.125", "setAccelerometerX", "int32", 1000},
        {"Accelerometer", 1, 0.25, "1.5", "setAccelerometerY", "int32", 1000},
        {"Accelerometer", 2, 0.6, "-0.25", "setAccelerometerZ", "int32", 1000},
        {"Magnetometer", 0, 0.1, "25", "setMagnetometerX", "double", 1e-6},
        {"Magnetometer", 1, 0.8, "-1.5", "setMagnetometerY", "double", 1e-6},
        {"Magnetometer", 2, 0.3, "65", "setMagnetometerZ", "double", 1e-6},
        {"Magnetometer", 3, 0.4, "2", "setMagnetometerCalibrationLevel", "int32", 1},
        {"Compass", 0, 0.5, "30", "setCompassAzimuth", "", 1},
        {"Compass", 1, 0.1, "3", "setMagnetometerCalibrationLevel", "int32", 1},
        {"Gyroscope", 0, 0.9, "2.5", "setGyroscopeX", "double", 1},
        {"Gyroscope", 1, 0.2, "25", "setGyroscopeY", "double", 1},
        {"Gyroscope", 2, 0.7, "-3.125", "setGyroscopeZ", "double", 1},
        {"Light Sensor", 0, 0.45, "90", "setAlsValue", "int32", 1},
        {"Proximity Sensor", 0, 0.9, "7", "setProximitySensorValue", "int32", 1},
    };
    static const Choice choices[] = {
        {"Orientation Sensor",
         {{"TopUp", "setAccelerometerValues int32:0 int32:100 int32:0"},
          {"TopDown", "setAccelerometerValues int32:0 int32:-100 int32:0"},
          {"LeftUp", "setAccelerometerValues int32:-100 int32:0 int32:0"},
          {"RightUp", "setAccelerometerValues int32:100 int32:0 int32:0"},
          {"FaceUp", "setAccelerometerValues int32:0 int32:0 int32:300"},
          {"FaceDown", "setAccelerometerValues int32:0 int32:0 int32:-300"}}},
        {"Light Sensor",
         {{"Undefined", "setAlsValue int32:-1"},
          {"Dark", "setAlsValue int32:0"},
          {"Twilight", "setAlsValue int32:10"},
          {"Light", "setAlsValue int32:80"},
          {"Bright", "setAlsValue int32:400"},
          {"Sunny", "setAlsValue int32:2500"}}},
        {"Tap Sensor",
         {{"X_Both", "setTapSensorValue int32:0"},
          {"Y_Both", "setTapSensorValue int32:1"},
          {"Z_Both", "setTapSensorValue int32:2"},
          {"X_Pos", "setTapSensorValue int32:3"},
          {"X_Neg", "setTapSensorValue int32:4"},
          {"Z_Neg", "setTapSensorValue int32:5"},
          {"Z_Pos", "setTapSensorValue int32:6"},
          {"Y_Pos", "setTapSensorValue int32:7"},
          {"Y_Neg", "setTapSensorValue int32:8"},
          {"Undefined", "setTapSensorValue int32:-1"}}},
    };

    m_driver.clickButton(u"Sensors Values"_s);
    for (const Field &field : fields)
        drag(field);
    for (const Field &field : fields)
        type(field);
    changeMagneticField();
    for (const Choice &choice : choices)
        choose(choice);
    m_takePicture(u"sensors-values"_s);
    resetValues();

    const QSize size = m_driver.window()->size();
    m_driver.window()->resize(size * 2 / 3);
    m_takePicture(u"sensors-values-small"_s);
    m_driver.window()->resize(size);
}

void SensorsTour::checkMissing(const QStringList &titles)
{
    const auto isShown = [this](const char *className, const char *property, const QString &title) {
        return std::ranges::any_of(
            m_driver.items(QLatin1StringView(className)),
            [&](const QQuickItem *item) { return item->property(property).toString() == title; });
    };
    const auto checkPage = [&](const char *page, const char *className, const char *property) {
        m_driver.clickButton(QLatin1StringView(page));
        for (const char *title : {"Accelerometer", "Proximity Sensor", "Tap Sensor"}) {
            waitFor(
                u"\"%1\" on the page %2"_s.arg(QLatin1StringView(title), QLatin1StringView(page)),
                [&] {
                    return isShown(className, property, QLatin1StringView(title))
                           != titles.contains(QLatin1StringView(title));
                });
        }
        if (!titles.isEmpty())
            m_takePicture(QString(QLatin1StringView(page)).toLower().replace(u' ', u'-')
                          + u"-fewer"_s);
    };
    checkPage("Sensors Management", "QQuickCheckBox", "text");
    checkPage("Sensors Values", "SensorControls", "title");
}

void SensorsTour::drag(const Field &field)
{
    const QQuickItem *slider = partOf(m_driver, field.frame, "QQuickSlider", field.index);
    const qsizetype start = m_journal.position();
    m_driver.drag(slider, field.fraction);
    m_journal.waitForCall(
        callFor(field.method, field.type, field.multiplier, slider->property("value").toDouble()),
        start);
}

void SensorsTour::type(const Field &field)
{
    const QQuickItem *text = partOf(m_driver, field.frame, "QQuickTextField", field.index);
    const qsizetype start = m_journal.position();
    m_driver.type(text, QLatin1StringView(field.text));
    m_journal.waitForCall(
        callFor(field.method, field.type, field.multiplier, QByteArray(field.text).toDouble()),
        start);
}

void SensorsTour::choose(const Choice &choice)
{
    const QQuickItem *comboBox = partOf(m_driver, choice.frame, "QQuickComboBox", 0);
    for (const auto &[entry, call] : choice.entries) {
        const qsizetype start = m_journal.position();
        m_driver.choose(comboBox, QLatin1StringView(entry));
        m_journal.waitForCall(QLatin1StringView(call), start);
    }
}

void SensorsTour::clickProximityButtons()
{
    const qsizetype start = m_journal.position();
    m_driver.clickButton(u"Near"_s);
    m_journal.waitForCall(u"setProximitySensorValue int32:0"_s, start);
    m_driver.clickButton(u"Far"_s);
    m_journal.waitForCall(u"setProximitySensorValue int32:10"_s, start);
}

// Only the proximity buttons may make calls, because the magnetic field is not sent.
void SensorsTour::changeMagneticField()
{
    const qsizetype start = m_journal.position();
    for (int axis = 0; axis < 3; ++axis) {
        m_driver.drag(partOf(m_driver, "Magnetic Field", "QQuickSlider", axis), 0.7);
        m_driver.type(partOf(m_driver, "Magnetic Field", "QQuickTextField", axis), u"-99.999"_s);
    }
    clickProximityButtons();
    const QStringList calls = m_journal.callsSince(start);
    for (const QString &call : calls) {
        if (!call.startsWith(u"setProximitySensorValue"))
            throw WaitingFailed("the magnetic field was sent: " + call.toStdString());
    }
}

void SensorsTour::resetValues()
{
    const qsizetype start = m_journal.position();
    m_driver.clickButton(u"Reset values"_s);
    for (const char *call :
         {"setAccelerometerValues int32:0 int32:0 int32:1000", "setAlsValue int32:100",
          "setGyroscopeValues double:0 double:0 double:1.14592",
          "setMagnetometerValues double:4.3e-05 double:0 double:0",
          "setMagnetometerCalibrationLevel int32:0", "setProximitySensorValue int32:5",
          "setTapSensorValue int32:-1"})
        m_journal.waitForCall(QLatin1StringView(call), start);
}
