#include "devicemodeltour.h"

#include "waiting.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr double period = 0.1; // s between two samples
constexpr double metresPerUnit = 0.06; // of the sliders that move
constexpr double gravity = 9.80665;
constexpr double unitsPerG = 1000;
constexpr double fieldPart = 9.9999e-05; // T along each axis, as the tour of sensors left it

/// What the emulator was told of the gyroscope's z, in degrees per second.
QList<double> gyroscopeSamples(Journal &journal, qsizetype since)
{
    QList<double> samples;
    const QStringList calls = journal.callsSince(since).filter(u"setGyroscopeValues ");
    for (const QString &call : calls)
        samples << call.section(u':', -1).toDouble();
    return samples;
}

} // namespace

DeviceModelTour::DeviceModelTour(const WindowDriver &driver, Journal &journal,
                                 const TakePicture &takePicture)
    : m_driver(driver)
    , m_journal(journal)
    , m_takePicture(takePicture)
{}

void DeviceModelTour::run()
{
    m_takePicture(QStringLiteral("device-model"));
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
        QString call = QStringLiteral("setMagnetometerValues");
        for (const char *sign = preset.fieldSigns; *sign != '\0'; ++sign)
            call += QStringLiteral(" double:%1").arg(*sign == '-' ? -fieldPart : fieldPart);
        m_journal.waitForCall(call, start);
    }
}

void DeviceModelTour::typeRotation()
{
    const qsizetype start = m_journal.position();
    m_driver.type(m_driver.items(QStringLiteral("QQuickTextField")).at(0), QStringLiteral("30"));
    waitForAcceleration(0, 866, -500, start);
    m_driver.type(m_driver.items(QStringLiteral("QQuickTextField")).at(2), QStringLiteral("-45"));
    waitForAcceleration(-612, 612, -500, start);
    m_takePicture(QStringLiteral("device-model-turned"));
    m_driver.clickButton(QStringLiteral("X 0°, Y 0°, Z 0°"));
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
        waitForSliders(QStringLiteral("a turn by an arrow key"), step.values);
    }
    m_driver.clickButton(QStringLiteral("Move"));
    const Step moves[] = {
        {Qt::Key_Left, {}, {-0.01, 0, 0}},
        {Qt::Key_Up, {}, {-0.01, 0.01, 0}},
        {Qt::Key_Right, {}, {0, 0.01, 0}},
        {Qt::Key_Down, {}, {0, 0, 0}},
    };
    for (const Step &step : moves) {
        press(step.key);
        waitForSliders(QStringLiteral("a move by an arrow key"), step.values);
    }
    m_driver.clickButton(QStringLiteral("Rotation"));
}

void DeviceModelTour::holdControl()
{
    // QTest presses and releases Ctrl around the key
    QTest::keyPress(m_driver.window(), Qt::Key_Left, Qt::ControlModifier);
    waitForSliders(QStringLiteral("a move while Ctrl is held"), {-0.01, 0, 0});
    m_takePicture(QStringLiteral("device-model-control"));
    QTest::keyRelease(m_driver.window(), Qt::Key_Left, Qt::ControlModifier);
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Left);
    waitForSliders(QStringLiteral("a turn after Ctrl was released"), {0, 0, -1});
    press(Qt::Key_Right);
}

void DeviceModelTour::goPastHalfTurn()
{
    m_driver.type(m_driver.items(QStringLiteral("QQuickTextField")).at(2), QStringLiteral("180"));
    QTest::mouseClick(m_driver.window(), Qt::LeftButton, {}, inArea(0.5, 0.5));
    press(Qt::Key_Right);
    waitForSliders(QStringLiteral("a turn past 180 degrees"), {0, 0, 181});
    press(Qt::Key_Right);
    waitForSliders(QStringLiteral("a turn from the other end"), {0, 0, -179});
    const qsizetype start = m_journal.position();
    m_driver.clickButton(QStringLiteral("X 0°, Y 0°, Z 0°"));
    waitForAcceleration(0, 1000, 0, start);
}

void DeviceModelTour::moveWithMouse()
{
    qsizetype start = m_journal.position();
    m_driver.clickButton(QStringLiteral("Move"));
    waitForAcceleration(0, 1000, 0, start);
    start = m_journal.position();
    QTest::mousePress(m_driver.window(), Qt::LeftButton, {}, inArea(0.5, 0.5));
    QTest::mouseMove(m_driver.window(), inArea(0.75, 0.25)); // half of the width is 3
    QTest::mouseRelease(m_driver.window(), Qt::LeftButton, {}, inArea(0.75, 0.25));
    QTest::wheelEvent(m_driver.window(), inArea(0.5, 0.5), QPoint(0, 120));
    waitFor(QStringLiteral("a move by drag and wheel"), [&] {
        const QList<double> values = sliderValues();
        return std::abs(values.at(0) - 1.5) < 0.02 && std::abs(values.at(1) - 1) < 0.02
               && qFuzzyCompare(values.at(2), 0.2);
    });
    m_takePicture(QStringLiteral("device-model-moved"));
    // a push and a stop within two periods, and rest
    const double push = sliderValues().at(0) * metresPerUnit * 2 / (period * period);
    const auto x = static_cast<int>(push / gravity * unitsPerG);
    waitFor(QStringLiteral("the push and the stop"), [&] {
        const QString calls = m_journal.callsSince(start).join(u'\n');
        return calls.contains(QStringLiteral("setAccelerometerValues int32:%1 ").arg(x))
               && calls.contains(QStringLiteral("setAccelerometerValues int32:%1 ").arg(-x));
    });
    start = m_journal.position();
    waitForAcceleration(0, 1000, 0, start);

    m_driver.type(m_driver.items(QStringLiteral("QQuickTextField")).at(0), QStringLiteral("0"));
    m_driver.clickButton(QStringLiteral("Rotation"));
}

void DeviceModelTour::turnSlowly()
{
    static constexpr int degrees = 90;
    static constexpr int milliseconds = 30; // for a degree
    const auto waitForRest = [this] {
        const qsizetype start = m_journal.position();
        waitFor(QStringLiteral("the gyroscope to rest"), [&] {
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
    m_driver.clickButton(QStringLiteral("X 0°, Y 0°, Z 0°"));
}

void DeviceModelTour::leave()
{
    m_driver.clickButton(QStringLiteral("Sensors Management"));
    QTest::qWait(5 * static_cast<int>(1000 * period));
    const qsizetype start = m_journal.position();
    QTest::qWait(5 * static_cast<int>(1000 * period));
    if (!gyroscopeSamples(m_journal, start).isEmpty())
        throw WaitingFailed("the device is sampled though its page was left");
}

QPoint DeviceModelTour::inArea(double x, double y) const
{
    const QQuickItem *area = m_driver.items(QStringLiteral("SmartphoneModelArea")).constFirst();
    return area->mapToScene(QPointF(x * area->width(), y * area->height())).toPoint();
}

QList<double> DeviceModelTour::sliderValues() const
{
    QList<double> values;
    const QList<QQuickItem *> sliders = m_driver.items(QStringLiteral("SliderWithTextField"));
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
        QStringLiteral("setAccelerometerValues int32:%1 int32:%2 int32:%3").arg(x).arg(y).arg(z),
        since);
}
