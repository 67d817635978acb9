#include "outputpanetest.h"

#include <gpspagedriver.h>
#include <outputpanedriver.h>
#include <plugindriver.h>

#include <waiting.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

using namespace PluginDriver;
using namespace Qt::StringLiterals;

static QTreeView *table()
{
    for (QWidget *widget : QApplication::allWidgets()) {
        if (widget->accessibleName() == "Calls of the emulator")
            return qobject_cast<QTreeView *>(widget);
    }
    return nullptr;
}

/// The columns of the last row whose method is this.
static QStringList lastRow(const QString &method)
{
    const QAbstractItemModel *model = table()->model();
    for (int row = model->rowCount() - 1; row >= 0; --row) {
        QStringList columns;
        for (int column = 1; column < model->columnCount(); ++column)
            columns << model->index(row, column).data().toString();
        if (columns.at(1) == method)
            return columns;
    }
    return {};
}

static void setLight(int lux)
{
    QMetaObject::invokeMethod(sensorsManager(), "setAlsLuxValue", lux);
}

void OutputPaneTest::initTestCase()
{
    JournalReader journal(journalPath());
    setLight(7); // there is no link yet
    openWindow(journal);
    QVERIFY(!table()); // the pane costs nothing until it is shown
    OutputPaneDriver::show();
    waitFor("the table", [] { return table() && table()->model()->rowCount() > 0; });
}

void OutputPaneTest::testCallsAndTheirFailures()
{
    const QModelIndex first = table()->model()->index(0, 4);
    QCOMPARE(first.data().toString(), "not sent, because the link was down");
    control("fail setAlsValue org.vexa.Error.Broken It is broken");
    setLight(42);
    waitFor("the refusal", [] {
        const QStringList row = lastRow("setAlsValue");
        return row.first(4)
               == QStringList{"sensors", "setAlsValue", "illuminance 42 lx",
                              "org.vexa.Error.Broken It is broken"};
    });
    control("fail setAlsValue");
    QMetaObject::invokeMethod(errorDialog(), "close");
}

void OutputPaneTest::testRecordingIsPlayedAndTheWindowRests()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("session.emulation.jsonl");
    JournalReader journal(journalPath());
    OutputPaneDriver::click("Record…");
    OutputPaneDriver::chooseFile(path);
    for (const int lux : {11, 12, 13}) {
        setLight(lux);
        QTest::qWait(50);
    }
    OutputPaneDriver::click("Stop Recording");
    setLight(14);
    waitFor("the window's value",
            [&] { return journal.callsSince(0).contains("setAlsValue int32:14"); });
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArrayList lines = file.readAll().split('\n');
    lines.insert(
        1, R"({"after":0,"service":"camera","method":"startVideo","arguments":[")" MEDIA_FOLDER
           R"(/vp8.webm"]})");
    file.seek(0);
    file.write(lines.join('\n'));
    file.close();

    const qsizetype start = journal.position();
    OutputPaneDriver::click("Play…");
    OutputPaneDriver::chooseFile(path);
    waitFor("the recording",
            [&] { return journal.callsSince(start).contains("setAlsValue int32:11"); });
    setLight(15); // is not sent while the recording plays, but afterwards
    waitFor("the window's values",
            [&] { return journal.callsSince(start).contains("setAlsValue int32:15"); });
    QStringList calls = journal.callsSince(start);
    calls.removeIf([](const QString &call) { return !call.startsWith("setAlsValue"); });
    QCOMPARE(calls, (QStringList{"setAlsValue int32:11", "setAlsValue int32:12",
                                 "setAlsValue int32:13", "setAlsValue int32:15"}));
    QVERIFY(!contextObject("cameraEmulationManager")->property("streamRunning").toBool());
}

// The recording replaces the emulator's track.
void OutputPaneTest::testTrackRestsAndGoesOn()
{
    const GpsPageDriver page(WindowDriver::waitForWindow("Emulation Management"));
    page.openTrack(TEST_DATA "/gga.nmea");
    page.clickTrackButton("Play");
    const QString second = "goToPositionOnTrack int32:1";
    JournalReader journal(journalPath());
    journal.waitForCall(second, 0);
    const qsizetype start = journal.position();
    OutputPaneDriver::click("Play…");
    OutputPaneDriver::chooseFile(DOCUMENTS "/session.emulation.jsonl");
    QStringList calls;
    waitFor("the track to go on", [&] {
        calls = journal.callsSince(start);
        const qsizetype end = calls.indexOf("setTrackLooped boolean:0"); // the window's values
        calls = end < 0 ? QStringList() : calls.sliced(end + 1);
        return calls.contains("goToPositionOnTrack int32:2");
    });
    calls.removeIf([](const QString &call) { return !call.contains("Track"); });
    calls.removeDuplicates();
    QCOMPARE(
        calls.sliced(calls.indexOf("goToPositionOnTrack int32:2") - 2, 3),
        (QStringList{"goToPositionOnTrack int32:1", "startTrack ", "goToPositionOnTrack int32:2"}));
}

void OutputPaneTest::cleanupTestCase()
{
    stopMachine();
}
