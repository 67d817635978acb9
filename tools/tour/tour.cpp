#include "tour.h"

#include "cameratour.h"
#include "devicemodeltour.h"
#include "locationtour.h"
#include "menudriver.h"
#include "messageboxanswers.h"
#include "say.h"
#include "sensorstour.h"
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

/// The picture shows what was drawn last: gives the windows a moment to draw and animate.
static void settle()
{
    static constexpr int milliseconds = 300;
    QTest::qWait(milliseconds);
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
    visitSensors(driver);
    visitDeviceModel(driver);
    visitLocation(driver);
    CameraTour(driver, m_journal, [this](const QString &name) { takePicture(name); }).run();
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

void Tour::chooseDeviceModel(const QString &name)
{
    auto *mainWindow = qobject_cast<QMainWindow *>(Core::ICore::mainWindow());
    mainWindow->activateWindow();
    waitFor(QStringLiteral("the IDE's window to be active"),
            [&] { return mainWindow->isActiveWindow(); });
    QMenu *menu
        = MenuDriver::open(mainWindow, {QStringLiteral("Tools"), QStringLiteral("Nimbra OS"),
                                        QStringLiteral("Device Model")});
    MenuDriver::choose(menu, name);
}

void Tour::visitSensors(const WindowDriver &driver)
{
    SensorsTour tour(driver, m_journal, [this](const QString &name) { takePicture(name); });
    say(QStringLiteral("Sensors Management: switching every sensor off and on"));
    tour.visitManagement();
    say(QStringLiteral("Choosing a device model without proximity and tap sensor, and back"));
    chooseDeviceModel(QStringLiteral("Nimbra Lite"));
    tour.checkMissing({QStringLiteral("Proximity Sensor"), QStringLiteral("Tap Sensor")});
    chooseDeviceModel(QStringLiteral("Nimbra Phone"));
    tour.checkMissing({});
    say(QStringLiteral("Sensors Values: dragging, typing and choosing"));
    tour.visitValues();
}

void Tour::visitDeviceModel(const WindowDriver &driver)
{
    say(QStringLiteral("Orientation Management: turning and moving the device"));
    const qsizetype start = m_journal.position();
    {
        // the device model is about to replace the values that were set by hand
        const MessageBoxAnswers answers(QMessageBox::Ok);
        driver.clickButton(QStringLiteral("Orientation Management"));
        if (answers.boxes().size() != 1)
            throw WaitingFailed("no warning came before the device model's page");
    }
    m_journal.waitForCall(QStringLiteral("setGyroscopeValues double:0 double:0 double:0"), start);
    driver.window()->raise(); // the warning has raised the IDE
    DeviceModelTour(driver, m_journal, [this](const QString &name) { takePicture(name); }).run();
}

void Tour::visitLocation(const WindowDriver &driver)
{
    const QString page = QStringLiteral("GPS Management");
    say(page);
    driver.clickButton(page);
    takePicture(QStringLiteral("gps-management"));
    LocationTour(driver, m_journal, [this](const QString &name) {
        takePicture(name);
    }).visit(QStringLiteral(SAMPLE_TRACK));
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
    static constexpr int longestCall = 100; // a track has many points
    QMap<QString, std::pair<int, QString>> calls; // by method: how many, and the last one
    const QStringList received = m_journal.callsSince(0);
    for (const QString &call : received) {
        auto &[count, last] = calls[call.section(u' ', 0, 0)];
        ++count;
        last = call;
    }
    say(QStringLiteral("The emulator received %1 calls; of each method the last:")
            .arg(received.size()));
    for (const auto &[count, last] : std::as_const(calls))
        say(QStringLiteral("  %1 × %2").arg(count, 4).arg(last.left(longestCall)));
}
