#include "tour.h"

#include "menudriver.h"
#include "messageboxanswers.h"
#include "waiting.h"

#include <coreplugin/icore.h>

#include <QGuiApplication>
#include <QMainWindow>
#include <QMenu>
#include <QPixmap>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QTest>

#include <cstdio>

static void say(const QString &line)
{
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

/// The picture shows what was drawn last: gives the windows a moment to draw and animate.
static void settle()
{
    static constexpr int milliseconds = 300;
    QTest::qWait(milliseconds);
}

static QQuickItem *frameOf(const WindowDriver &driver, const char *title)
{
    return driver.item(QStringLiteral("SensorControls"), "title", QLatin1String(title));
}

Tour::Tour(const QString &pictureFolder, const QString &journalPath)
    : m_pictureFolder(pictureFolder)
    , m_journal(journalPath)
{}

void Tour::run()
{
    try {
        visitAll();
    } catch (const WaitingFailed &) {
        takePicture(QStringLiteral("failure"));
        throw;
    }
}

void Tour::visitAll()
{
    openWindow();
    const WindowDriver driver = WindowDriver::waitForWindow(QStringLiteral("Emulation Management"));
    m_journal.waitForEvent(QStringLiteral("relay-connected"), 0);
    m_journal.waitForCall(QStringLiteral("setAccelerometerValues int32:0 int32:0 int32:1000"), 0);
    takePicture(QStringLiteral("window"));
    visitSensorsManagement(driver);
    visitSensorsValues(driver);
    visitOtherPages(driver);
    printCalls();
}

void Tour::openWindow()
{
    say(QStringLiteral("Choosing Tools > Nimbra OS > Emulation Management…"));
    auto *mainWindow = qobject_cast<QMainWindow *>(Core::ICore::mainWindow());
    waitFor(QStringLiteral("the IDE's window to be active"),
            [&] { return mainWindow->isActiveWindow(); });
    QMenu *menu
        = MenuDriver::open(mainWindow, {QStringLiteral("Tools"), QStringLiteral("Nimbra OS")});
    takePicture(QStringLiteral("menu"));
    MenuDriver::choose(menu, QStringLiteral("Emulation Management…"));
}

void Tour::visitSensorsManagement(const WindowDriver &driver)
{
    say(QStringLiteral("Sensors Management: switching the accelerometer off and on"));
    driver.clickButton(QStringLiteral("Sensors Management"));
    takePicture(QStringLiteral("sensors-management"));
    qsizetype start = m_journal.position();
    driver.clickButton(QStringLiteral("Accelerometer"));
    takePicture(QStringLiteral("sensors-management-changed"));
    driver.clickButton(QStringLiteral("Apply"));
    // the compass and the orientation are computed from it
    for (const char *sensor : {"accelerometer", "compass", "orientation"})
        m_journal.waitForCall(QStringLiteral("disableSensor string:%1").arg(QLatin1String(sensor)),
                              start);

    start = m_journal.position();
    driver.clickButton(QStringLiteral("Compass"));
    driver.clickButton(QStringLiteral("Orientation Sensor"));
    driver.clickButton(QStringLiteral("Apply"));
    for (const char *sensor : {"accelerometer", "compass", "orientation"})
        m_journal.waitForCall(QStringLiteral("enableSensor string:%1").arg(QLatin1String(sensor)),
                              start);
}

void Tour::visitSensorsValues(const WindowDriver &driver)
{
    say(QStringLiteral("Sensors Values: dragging, typing and choosing"));
    driver.clickButton(QStringLiteral("Sensors Values"));
    dragAcceleration(driver);
    typeValues(driver);
    chooseValues(driver);
    takePicture(QStringLiteral("sensors-values"));

    const qsizetype start = m_journal.position();
    driver.clickButton(QStringLiteral("Reset values"));
    m_journal.waitForCall(QStringLiteral("setTapSensorValue int32:-1"), start);
    takePicture(QStringLiteral("sensors-values-reset"));
}

void Tour::dragAcceleration(const WindowDriver &driver)
{
    const QQuickItem *slider
        = driver.items(QStringLiteral("QQuickSlider"), frameOf(driver, "Accelerometer"))
              .constFirst();
    const qsizetype start = m_journal.position();
    driver.drag(slider, 0.75);
    const int x = qRound(slider->property("value").toDouble() * 1000);
    m_journal.waitForCall(QStringLiteral("setAccelerometerX int32:%1").arg(x), start);
}

void Tour::typeValues(const WindowDriver &driver)
{
    struct Value
    {
        const char *frame;
        qsizetype field;
        const char *text;
        const char *call; // nothing for what stays on the host
    };
    static constexpr Value values[] = {
        {"Accelerometer", 1, "1.5", "setAccelerometerY int32:1500"},
        {"Accelerometer", 2, "-0.25", "setAccelerometerZ int32:-250"},
        {"Magnetometer", 0, "25", "setMagnetometerX double:2.5e-05"},
        {"Magnetometer", 1, "-1.5", "setMagnetometerY double:-1.5e-06"},
        {"Magnetometer", 2, "65", "setMagnetometerZ double:6.5e-05"},
        {"Magnetometer", 3, "2", "setMagnetometerCalibrationLevel int32:2"},
        {"Compass", 0, "30",
         "setMagnetometerValues double:-2.17945e-05 double:3.77492e-05 double:0"},
        {"Compass", 1, "3", "setMagnetometerCalibrationLevel int32:3"},
        {"Magnetic Field", 0, "12.5", nullptr},
        {"Gyroscope", 0, "2.5", "setGyroscopeX double:2.5"},
        {"Gyroscope", 1, "25", "setGyroscopeY double:25"},
        {"Gyroscope", 2, "-3.125", "setGyroscopeZ double:-3.125"},
        {"Light Sensor", 0, "90", "setAlsValue int32:90"},
        {"Proximity Sensor", 0, "7", "setProximitySensorValue int32:7"},
    };
    for (const Value &value : values) {
        const QList<QQuickItem *> fields
            = driver.items(QStringLiteral("QQuickTextField"), frameOf(driver, value.frame));
        const qsizetype start = m_journal.position();
        driver.type(fields.at(value.field), QLatin1String(value.text));
        if (value.call)
            m_journal.waitForCall(QLatin1String(value.call), start);
    }
}

void Tour::chooseValues(const WindowDriver &driver)
{
    struct Choice
    {
        const char *frame;
        const char *entry;
        const char *call;
    };
    static constexpr Choice choices[] = {
        {"Orientation Sensor", "LeftUp", "setAccelerometerValues int32:-100 int32:0 int32:0"},
        {"Light Sensor", "Sunny", "setAlsValue int32:2500"},
        {"Tap Sensor", "Y_Pos", "setTapSensorValue int32:7"},
    };
    for (const Choice &choice : choices) {
        const QQuickItem *comboBox
            = driver.items(QStringLiteral("QQuickComboBox"), frameOf(driver, choice.frame))
                  .constFirst();
        const qsizetype start = m_journal.position();
        driver.choose(comboBox, QLatin1String(choice.entry));
        m_journal.waitForCall(QLatin1String(choice.call), start);
    }
    const qsizetype start = m_journal.position();
    driver.clickButton(QStringLiteral("Near"));
    m_journal.waitForCall(QStringLiteral("setProximitySensorValue int32:0"), start);
    driver.clickButton(QStringLiteral("Far"));
    m_journal.waitForCall(QStringLiteral("setProximitySensorValue int32:10"), start);
}

void Tour::visitOtherPages(const WindowDriver &driver)
{
    // the device model is about to replace the values that were set by hand
    const MessageBoxAnswers answers(QMessageBox::Ok);
    for (const QString &page :
         {QStringLiteral("Orientation Management"), QStringLiteral("GPS Management"),
          QStringLiteral("Camera Management")}) {
        say(page);
        driver.clickButton(page);
        takePicture(page.toLower().replace(u' ', u'-'));
    }
    if (answers.boxes().size() != 1)
        throw WaitingFailed("no warning came before the device model's page");
}

void Tour::takePicture(const QString &name)
{
    settle();
    const QString path = QStringLiteral("%1/%2-%3.png")
                             .arg(m_pictureFolder)
                             .arg(++m_pictureCount, 2, 10, QLatin1Char('0'))
                             .arg(name);
    if (!QGuiApplication::primaryScreen()->grabWindow().save(path))
        throw WaitingFailed("the picture " + path.toStdString() + " could not be saved");
    say(QStringLiteral("  picture %1").arg(path));
}

void Tour::printCalls()
{
    say(QStringLiteral("The emulator received:"));
    const QStringList calls = m_journal.callsSince(0);
    for (const QString &call : calls)
        say(QStringLiteral("  ") + call);
}
