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

using namespace Qt::StringLiterals;

/// Waits a moment, so that the windows are drawn and animations have ended.
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
        takePicture(u"failure"_s);
        throw;
    }
}

void Tour::visitAll()
{
    openWindow();
    const WindowDriver driver = WindowDriver::waitForWindow(u"Emulation Management"_s);
    m_journal.waitForEvent(u"relay-connected"_s, 0);
    m_journal.waitForCall(u"setAccelerometerValues int32:0 int32:0 int32:1000"_s, 0);
    takePicture(u"window"_s);
    visitSensors(driver);
    visitDeviceModel(driver);
    visitLocation(driver);
    CameraTour(driver, m_journal, [this](const QString &name) { takePicture(name); }).run();
    printCalls();
}

void Tour::openWindow()
{
    say(u"Choosing Tools > Nimbra OS > Emulation Management…"_s);
    auto *mainWindow = qobject_cast<QMainWindow *>(Core::ICore::mainWindow());
    waitFor(u"the IDE's window to be active"_s, [&] { return mainWindow->isActiveWindow(); });
    QMenu *menu = MenuDriver::open(mainWindow, {u"Tools"_s, u"Nimbra OS"_s});
    takePicture(u"menu"_s);
    MenuDriver::choose(menu, u"Emulation Management…"_s);
}

void Tour::chooseDeviceModel(const QString &name)
{
    auto *mainWindow = qobject_cast<QMainWindow *>(Core::ICore::mainWindow());
    mainWindow->activateWindow();
    waitFor(u"the IDE's window to be active"_s, [&] { return mainWindow->isActiveWindow(); });
    QMenu *menu = MenuDriver::open(mainWindow, {u"Tools"_s, u"Nimbra OS"_s, u"Device Model"_s});
    MenuDriver::choose(menu, name);
}

void Tour::visitSensors(const WindowDriver &driver)
{
    SensorsTour tour(driver, m_journal, [this](const QString &name) { takePicture(name); });
    say(u"Sensors Management: switching every sensor off and on"_s);
    tour.visitManagement();
    say(u"Choosing a device model without proximity and tap sensor, and back"_s);
    chooseDeviceModel(u"Nimbra Lite"_s);
    tour.checkMissing({u"Proximity Sensor"_s, u"Tap Sensor"_s});
    chooseDeviceModel(u"Nimbra Phone"_s);
    tour.checkMissing({});
    say(u"Sensors Values: dragging, typing and choosing"_s);
    tour.visitValues();
}

void Tour::visitDeviceModel(const WindowDriver &driver)
{
    say(u"Orientation Management: turning and moving the device"_s);
    const qsizetype start = m_journal.position();
    {
        // the plugin asks before the page replaces the values that were set by hand
        const MessageBoxAnswers answers(QMessageBox::Ok);
        driver.clickButton(u"Orientation Management"_s);
        if (answers.boxes().size() != 1)
            throw WaitingFailed("no warning came before the device model's page");
    }
    m_journal.waitForCall(u"setGyroscopeValues double:0 double:0 double:0"_s, start);
    driver.window()->raise(); // the warning raised the IDE's window
    DeviceModelTour(driver, m_journal, [this](const QString &name) { takePicture(name); }).run();
}

void Tour::visitLocation(const WindowDriver &driver)
{
    const QString page = u"GPS Management"_s;
    say(page);
    driver.clickButton(page);
    takePicture(u"gps-management"_s);
    LocationTour(driver, m_journal, [this](const QString &name) {
        takePicture(name);
    }).visit(SAMPLE_TRACK);
}

void Tour::takePicture(const QString &name)
{
    settle();
    const QString path = u"%1/%2-%3.png"_s.arg(m_pictureFolder)
                             .arg(++m_pictureCount, 2, 10, QChar(u'0'))
                             .arg(name);
    if (!QGuiApplication::primaryScreen()->grabWindow().save(path))
        throw WaitingFailed("the picture " + path.toStdString() + " could not be saved");
    say(u"  picture %1"_s.arg(path));
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
    say(u"The emulator received %1 calls; of each method the last:"_s.arg(received.size()));
    for (const auto &[count, last] : std::as_const(calls))
        say(u"  %1 × %2"_s.arg(count, 4).arg(last.left(longestCall)));
}
