#include "devicemodeltour.h"

#include "waiting.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

static constexpr double period = 0.1; // s between two samples
static constexpr double metresPerUnit = 0.06; // of the sliders that move
static constexpr double gravity = 9.80665;
static constexpr double unitsPerG = 1000;
static constexpr double fieldPart = 9.9999e-05; // T along each axis, as the tour of sensors left it

/// The gyroscope's z values that the emulator received, in degrees per second.
static QList<double> gyroscopeSamples(JournalReader &journal, qsizetype since)
{
    QList<double> samples;
    const QStringList calls = journal.callsSince(since).filter(u"setGyroscopeValues ");
    for (const QString &call : calls)
        samples << call.section(u':', -1).toDouble();
    return samples;
}

DeviceModelTour::DeviceModelTour(const WindowDriver &driver, JournalReader &journal,
                                 const TakePicture &takePicture)
    : m_driver(driver)
    , m_journal(journal)
    , m_takePicture(takePicture)
{}

void DeviceModelTour::run()
{
    m_takePicture(u"device-model"_s);
    pressPresets();
    typeRotation();
    pressArrowKeys();
    holdControl();
    goPastHalfTurn();
    moveWithMouse();
    turnSlowly();
    leave();
}

void DeviceModelTour::pressPresets()
{
    struct Preset
    {
        const char *text;
        int x, y, z; // thousandths of g
        const char *fieldSigns;
    };
    static constexpr Preset presets[] = {
        {"X 0°, Y 0°, Z -90°", -1000, 0, 0, "+--"}, {"X 0°, Y 0°, Z 180°", 0, -1000, 0, "++-"},
        {"X 0°, Y 0°, Z 90°", 1000, 0, 0, "-+-"},   {"X -90°, Y 0°, Z 0°", 0, 0, 1000, "-+-"},
        {"X 90°, Y 0°, Z 0°", 0, 0, -1000, "--+"},  {"X 0°, Y 0°, Z 0°", 0, 1000, 0, "---"},
    };
    for (const Preset &preset : presets) {
        const qsizetype start = m_journal.position();
        m_driver.clickButton(QString::fromUtf8(preset.text));
        waitForAcceleration(preset.x, preset.y, preset.z, start);
        QString call = u"setMagnetometerValues"_s;
        for (const char *sign = preset.fieldSigns; *sign != '\0'; ++sign)
            call += u" double:%1"_s.arg(*sign == '-' ? -fieldPart : fieldPart);
        m_journal.waitForCall(call, start);
    }
}

void DeviceModelTour::typeRotation()
{
    const qsizetype start = m_journal.position();
    m_driver.type(m_driver.items(u"QQuickTextField"_s).at(0), u"30"_s);
    waitForAcceleration(0, 866, -500, start);
    m_driver.type(m_driver.items(u"QQuickTextField"_s).at(2), u"-45"_s);
    waitForAcceleration(-612, 612, -500, start);
    m_takePicture(u"device-model-turned"_s);
    m_driver.clickButton(u"X 0°, Y 0°, Z 0°"_s);
}

void DeviceModelTour::pressArrowKeys()
{
    QTest::mouseClick(m_driver.window(), Qt::LeftButton, {}, inArea(0.5, 0.5));
    struct Step
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        QList<double> values;
    };
    const Step turns[] = {
        {Qt::Key_Left, {}, {0, 0, -1}},
        {Qt::Key_Up, {}, {1, 0, -1}},
        {Qt::Key_Right, Qt::ShiftModifier, {1, 1, -1}},
        {Qt::Key_Right, {}, {1, 1, 0}},
        {Qt::Key_Left, Qt::ShiftModifier, {1, 0, 0}},
        {Qt::Key_Down, {}, {0, 0, 0}},
    };
    for (const Step &step : turns) {
        press(step.key, step.modifiers);
        waitForSliders(u"a turn by an arrow key"_s, step.values);
    }
    m_driver.clickButton(u"Move"_s);
    const Step moves[] = {
        {Qt::Key_Left, {}, {-0.01, 0, 0}},
        {Qt::Key_Up, {}, {-0.01, 0.01, 0}},
        {Qt::Key_Right, {}, {0, 0.01, 0}},
        {Qt::Key_Down, {}, {0, 0, 0}},
    };
    for (const Step &step : moves) {
        press(step.key);
        waitForSliders(u"a move by an arrow key"_s, step.values);
    }
    m_driver.clickButton(u"Rotation"_s);
}

void DeviceModelTour::holdControl()
{
    // QTest presses and releases Ctrl around the key
    QTest::keyPress(m_driver.window(), Qt::Key_Left, Qt::ControlModifier);
    waitForSliders(u"a move while Ctrl is held"_s, {-0.01, 0, 0});
    m_takePicture(u"device-model-control"_s);
    QTest::keyRelease(m_driver.window(), Qt::Key_Left, Qt::ControlModifier);
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Left);
    waitForSliders(u"a turn after Ctrl was released"_s, {0, 0, -1});
    press(Qt::Key_Right);
}

void DeviceModelTour::goPastHalfTurn()
{
    m_driver.type(m_driver.items(u"QQuickTextField"_s).at(2), u"180"_s);
    QTest::mouseClick(m_driver.window(), Qt::LeftButton, {}, inArea(0.5, 0.5));
    press(Qt::Key_Right);
    waitForSliders(u"a turn past 180 degrees"_s, {0, 0, 181});
    press(Qt::Key_Right);
    waitForSliders(u"a turn from the other end"_s, {0, 0, -179});
    const qsizetype start = m_journal.position();
    m_driver.clickButton(u"X 0°, Y 0°, Z 0°"_s);
    waitForAcceleration(0, 1000, 0, start);
}

void DeviceModelTour::moveWithMouse()
{
    qsizetype start = m_journal.position();
    m_driver.clickButton(u"Move"_s);
    waitForAcceleration(0, 1000, 0, start);
    start = m_journal.position();
    QTest::mousePress(m_driver.window(), Qt::LeftButton, {}, inArea(0.5, 0.5));
    QTest::mouseMove(m_driver.window(), inArea(0.75, 0.25)); // half of the area's width is 3
    QTest::mouseRelease(m_driver.window(), Qt::LeftButton, {}, inArea(0.75, 0.25));
    QTest::wheelEvent(m_driver.window(), inArea(0.5, 0.5), QPoint(0, 120));
    waitFor(u"a move by drag and wheel"_s, [&] {
        const QList<double> values = sliderValues();
        return std::abs(values.at(0) - 1.5) < 0.02 && std::abs(values.at(1) - 1) < 0.02
               && qFuzzyCompare(values.at(2), 0.2);
    });
    m_takePicture(u"device-model-moved"_s);
    // the device speeds up and stops within two periods, and rests then
    const double push = sliderValues().at(0) * metresPerUnit * 2 / (period * period);
    const auto x = static_cast<int>(push / gravity * unitsPerG);
    waitFor(u"the push and the stop"_s, [&] {
        const QString calls = m_journal.callsSince(start).join(u'\n');
        return calls.contains(u"setAccelerometerValues int32:%1 "_s.arg(x))
               && calls.contains(u"setAccelerometerValues int32:%1 "_s.arg(-x));
    });
    start = m_journal.position();
    waitForAcceleration(0, 1000, 0, start);

    m_driver.type(m_driver.items(u"QQuickTextField"_s).at(0), u"0"_s);
    m_driver.clickButton(u"Rotation"_s);
}

void DeviceModelTour::turnSlowly()
{
    static constexpr int degrees = 90;
    static constexpr int milliseconds = 30; // per degree
    const auto waitForRest = [this] {
        const qsizetype start = m_journal.position();
        waitFor(u"the gyroscope to rest"_s, [&] {
            const QList<double> samples = gyroscopeSamples(m_journal, start);
            return samples.size() > 1 && samples.constLast() == 0;
        });
    };
    waitForRest();
    const qsizetype start = m_journal.position();
    for (int i = 0; i < degrees; ++i) {
        press(Qt::Key_Right);
        QTest::qWait(milliseconds);
    }
    waitForRest();
    const QList<double> samples = gyroscopeSamples(m_journal, start);
    const double angle = period * std::accumulate(samples.cbegin(), samples.cend(), 0.0);
    if (std::abs(angle - degrees) > 0.02 * degrees)
        throw WaitingFailed("a turn by 90 degrees was sampled as " + std::to_string(angle));
    m_driver.clickButton(u"X 0°, Y 0°, Z 0°"_s);
}

void DeviceModelTour::leave()
{
    m_driver.clickButton(u"Sensors Management"_s);
    QTest::qWait(5 * static_cast<int>(1000 * period));
    const qsizetype start = m_journal.position();
    QTest::qWait(5 * static_cast<int>(1000 * period));
    if (!gyroscopeSamples(m_journal, start).isEmpty())
        throw WaitingFailed("the device is sampled though its page was left");
}

QPoint DeviceModelTour::inArea(double x, double y) const
{
    const QQuickItem *area = m_driver.items(u"SmartphoneModelArea"_s).constFirst();
    return area->mapToScene(QPointF(x * area->width(), y * area->height())).toPoint();
}

QList<double> DeviceModelTour::sliderValues() const
{
    QList<double> values;
    const QList<QQuickItem *> sliders = m_driver.items(u"SliderWithTextField"_s);
    for (const QQuickItem *slider : sliders)
        values << slider->property("value").toDouble();
    return values;
}

void DeviceModelTour::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(m_driver.window(), key, modifiers);
}

void DeviceModelTour::waitForSliders(const QString &what, const QList<double> &values) const
{
    waitFor(what, [&] {
        const QList<double> shown = sliderValues();
        return std::ranges::equal(
            shown, values, [](double left, double right) { return std::abs(left - right) < 1e-9; });
    });
}

void DeviceModelTour::waitForAcceleration(int x, int y, int z, qsizetype since)
{
    m_journal.waitForCall(
        u"setAccelerometerValues int32:%1 int32:%2 int32:%3"_s.arg(x).arg(y).arg(z), since);
}
