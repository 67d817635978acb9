#include "tour.h"

#include "menudriver.h"
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

void Tour::visitSensorsValues(const WindowDriver &driver)
{
    say(QStringLiteral("Sensors Values: dragging and typing accelerations"));
    QQuickItem *frame
        = driver.item(QStringLiteral("SensorControls"), "title", QStringLiteral("Accelerometer"));
    const QList<QQuickItem *> sliders = driver.items(QStringLiteral("QQuickSlider"), frame);
    const QList<QQuickItem *> fields = driver.items(QStringLiteral("QQuickTextField"), frame);

    qsizetype start = m_journal.position();
    driver.drag(sliders.at(0), 0.75);
    const int x = qRound(sliders.at(0)->property("value").toDouble() * 1000);
    m_journal.waitForCall(QStringLiteral("setAccelerometerX int32:%1").arg(x), start);
    driver.type(fields.at(1), QStringLiteral("1.5"));
    m_journal.waitForCall(QStringLiteral("setAccelerometerY int32:1500"), start);
    driver.type(fields.at(2), QStringLiteral("-0.25"));
    m_journal.waitForCall(QStringLiteral("setAccelerometerZ int32:-250"), start);
    takePicture(QStringLiteral("sensors-values"));

    start = m_journal.position();
    driver.clickButton(QStringLiteral("Reset values"));
    m_journal.waitForCall(QStringLiteral("setAccelerometerValues int32:0 int32:0 int32:1000"),
                          start);
    takePicture(QStringLiteral("sensors-values-reset"));
}

void Tour::visitOtherPages(const WindowDriver &driver)
{
    for (const QString &page :
         {QStringLiteral("Sensors Management"), QStringLiteral("Orientation Management"),
          QStringLiteral("GPS Management"), QStringLiteral("Camera Management")}) {
        say(page);
        driver.clickButton(page);
        takePicture(page.toLower().replace(u' ', u'-'));
    }
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
