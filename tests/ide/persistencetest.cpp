#include "persistencetest.h"

#include <plugindriver.h>

#include <waiting.h>
#include <windowdriver.h>

#include <coreplugin/icore.h>

#include <ravik/emulator.h>

#include <utils/qtcsettings.h>

#include <QQuickItem>
#include <QTest>

using namespace PluginDriver;

static QList<QQuickItem *> accelerometerFields(const WindowDriver &driver)
{
    return driver.items("QQuickTextField", driver.item("SensorControls", "title", "Accelerometer"));
}

void PersistenceTest::testSet()
{
    JournalReader journal(journalPath());
    openWindow(journal);
    const WindowDriver driver = WindowDriver::waitForWindow("Emulation Management");
    const QList<QQuickItem *> fields = accelerometerFields(driver);
    driver.type(fields.at(0), "0.123");
    driver.type(fields.at(1), "-2.5");
    driver.type(fields.at(2), "1.001");
    journal.waitForCall("setAccelerometerZ int32:1001", 0);

    control("relay close");
    waitFor("the values in the file, which outlives a crash of the IDE", [] {
        QFile file(Core::ICore::settings()->fileName());
        return file.open(QIODevice::ReadOnly) && file.readAll().contains("accelerometer_z=1001");
    });
    const qsizetype start = journal.position();
    control("relay open");
    journal.waitForCall("setAccelerometerValues int32:123 int32:-2500 int32:1001", start);
}

void PersistenceTest::testRestored()
{
    const Utils::QtcSettings *settings = Core::ICore::settings();
    QCOMPARE(settings->value("emulationmanagement/accelerometer_x").toInt(), 123);
    QCOMPARE(settings->value("emulationmanagement/accelerometer_y").toInt(), -2500);
    QCOMPARE(settings->value("emulationmanagement/accelerometer_z").toInt(), 1001);

    JournalReader journal(journalPath());
    const qsizetype start = journal.position();
    openWindow(journal);
    QVERIFY(journal.callsSince(start).contains(
        "setAccelerometerValues int32:123 int32:-2500 int32:1001"));
    const WindowDriver driver = WindowDriver::waitForWindow("Emulation Management");
    QStringList shown;
    for (const QQuickItem *field : accelerometerFields(driver))
        shown << field->property("text").toString();
    QCOMPARE(shown, (QStringList{"0.123", "-2.500", "1.001"}));
}
