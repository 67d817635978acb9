#include "restartbenchmark.h"

#include "ratio.h"

#include <messageboxanswers.h>
#include <plugindriver.h>
#include <waiting.h>

#include <ravik/virtualmachine.h>

#include <QFile>
#include <QTest>

using namespace PluginDriver;

/// The memory that only this process uses, in MiB.
static double privateMemory()
{
    QFile file("/proc/self/smaps_rollup");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The memory in use cannot be read");
    double kibibytes = 0;
    const QByteArrayList lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("Private_Dirty:"))
            kibibytes = line.simplified().split(' ').at(1).toDouble();
    }
    return kibibytes / 1024;
}

// The calls that the emulator received, the plugin's state of the sensors, and the track's state.
static QStringList stateAfterRestart(JournalReader &journal)
{
    QStringList state = journal.callsSince(0);
    const QVariantMap enabled = sensorsManager()->property("sensorsEnabledStates").toMap();
    const QVariantMap available = sensorsManager()->property("sensorsAvailability").toMap();
    for (const QString &sensor : available.keys())
        state << sensor + available.value(sensor).toString() + enabled.value(sensor).toString();
    for (const char *model : {"accelerometer", "magnetometer", "gyroscope"}) {
        const auto *values = sensorsManager()->property(model).value<QObject *>();
        for (const char *axis : {"x", "y", "z"})
            state << model + values->property(axis).toString();
    }
    state << gpsManager()->property("trackLoaded").toString();
    return state;
}

void RestartBenchmark::testMemory()
{
    static constexpr int first = 20;
    static constexpr int restarts = 100;
    const MessageBoxAnswers answers(QMessageBox::Ok);
    JournalReader journal(journalPath());
    openWindow(journal);
    QStringList state;
    double memory = 0;
    for (int restart = 1; restart <= restarts; ++restart) {
        QMetaObject::invokeMethod(sensorsManager(), "setAccelerometerX", restart);
        control("kill");
        waitFor("the machine to be off", [] { return machine()->isOff(nullptr, nullptr); });
        journal.clear();
        openWindow(journal);
        const QStringList restored = stateAfterRestart(journal);
        if (restart == 1)
            state = restored;
        QCOMPARE(restored, state);
        if (restart == first)
            memory = privateMemory();
    }
    QVERIFY(answers.boxes().isEmpty());
    report({.what = "memory after 100 restarts of the emulator",
            .measured = privateMemory(),
            .baseline = memory,
            .unit = "MiB",
            .limit = 1.02});
}

void RestartBenchmark::cleanupTestCase()
{
    stopMachine();
}
