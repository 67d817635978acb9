#include "locationtest.h"

#include <coreplugin/progressmanager/progressmanager.h>

#include <messageboxanswers.h>
#include <plugindriver.h>
#include <waiting.h>

#include <QFile>
#include <QQuickItem>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace PluginDriver;
using namespace Qt::StringLiterals;

static const QString ggaRecord = "loadTrack array:array:double:60.0500000,30.1800000,12.50,0;"
                                 "60.0583350,30.1938197,14.90,400;60.0577800,30.2161803,8.70,400;"
                                 "60.0422200,30.2161803,16.30,400;60.0416650,30.1938197,10.10,400";

static QString goTo(int index)
{
    return u"goToPositionOnTrack int32:%1"_s.arg(index);
}

static WindowDriver window()
{
    return WindowDriver::waitForWindow("Emulation Management");
}

static void chooseSpeed(const QString &speed)
{
    window().choose(window().items("QQuickComboBox").constFirst(), speed);
}

void LocationTest::initTestCase()
{
    m_journal = std::make_unique<JournalReader>(journalPath());
    openWindow(*m_journal);
    m_page = std::make_unique<GpsPageDriver>(window());
}

void LocationTest::cleanupTestCase()
{
    const MessageBoxAnswers answers(QMessageBox::Ok);
    stopMachine();
    static_cast<void>(answers.waitForBox()); // which tells the user to load the track again
}

void LocationTest::init()
{
    QTest::failOnWarning(QRegularExpression("qrc:"));
}

QStringList LocationTest::takeCalls()
{
    // Calls arrive in order, so all earlier ones have arrived when this one has.
    static int mark = 0;
    const QString marker = u"setAltitude double:%1.00"_s.arg(++mark);
    QMetaObject::invokeMethod(gpsManager(), "setAltitude", Q_ARG(double, mark));
    m_journal->waitForCall(marker, m_position);
    QStringList calls = m_journal->callsSince(m_position);
    m_position = m_journal->position();
    calls.removeOne(marker);
    calls.erase(std::unique(calls.begin(), calls.end()), calls.end());
    return calls;
}

void LocationTest::waitForCall(const QString &call)
{
    m_journal->waitForCall(call, m_position);
}

void LocationTest::open(const QString &sample, int points)
{
    m_page->openTrack(TEST_DATA "/" + sample);
    waitFor("the track", [&] { return rowCount() == points; });
}

QString LocationTest::enabledButtons() const
{
    QStringList names;
    const QList<QQuickItem *> buttons = window().items("TrackButton");
    for (const QQuickItem *button : buttons) {
        if (button->isEnabled())
            names << button->property("name").toString();
    }
    return names.join(' ');
}

int LocationTest::rowCount() const
{
    return m_page->table()->property("rowCount").toInt();
}

void LocationTest::testCoordinates_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("call");
    QTest::newRow("letters sent") << "Latitude" << "x1e5y" << "setLatitude double:15.0000000";
    QTest::newRow("a sign sent as 0") << "Latitude" << "-" << "";
    QTest::newRow("more decimals sent than the emulator takes")
        << "Longitude" << "0.123456789" << "setLongitude double:0.1234567";
    QTest::newRow("cut at the group separator")
        << "Altitude" << "1,000.256" << "setAltitude double:1000.25";
}

void LocationTest::testCoordinates()
{
    QFETCH(QString, label);
    QFETCH(QString, text);
    QFETCH(QString, call);
    takeCalls();
    m_page->type(label, text);
    QCOMPARE(takeCalls(), call.isEmpty() ? QStringList() : QStringList{call});
}

void LocationTest::testTrackIsUploaded_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("altitude");
    QTest::addColumn<QString>("interval");
    QTest::newRow("GLL not read") << "gll.nmea" << "0.00" << "400";
    QTest::newRow("RMC not read") << "rmc.nmea" << "0.00" << "400";
    QTest::newRow("WPL not read") << "wpl.nmea" << "0.00" << "0";
    // made by gpsbabel -i gpx -f FILE -o nmea,gprmc=0,gpvtg=0,gpgsa=0 -F gpsbabel.nmea
    QTest::newRow("GGA of GPSBabel not read") << "gpsbabel.nmea" << "12.50" << "2000";
    QTest::newRow("GGA not read") << "gga.nmea" << "12.50" << "400";
}

void LocationTest::testTrackIsUploaded()
{
    QFETCH(QString, sample);
    QFETCH(QString, altitude);
    QFETCH(QString, interval);
    takeCalls();
    const bool first = !gpsManager()->property("trackLoaded").toBool();
    open(sample);
    QStringList calls = takeCalls();
    const QString record = calls.constLast();
    // If the emulator has no track, making the first row current uploads it once more.
    QCOMPARE(calls, (first ? QStringList{record} : QStringList{})
                        + (QStringList{goTo(0), "stopTrack ", record}));
    QVERIFY2(
        record.startsWith("loadTrack array:array:double:60.0500000,30.1800000," + altitude + ",0;"),
        qPrintable(record));
    QVERIFY2(record.endsWith(',' + interval), qPrintable(record));
    if (sample == "gga.nmea")
        QCOMPARE(record, ggaRecord);
}

void LocationTest::testPlayback()
{
    takeCalls();
    m_page->clickTrackButton("Play");
    waitForCall(goTo(2));
    m_page->clickTrackButton("Pause");
    const int index = gpsManager()->property("currentPositionIndex").toInt();
    QStringList calls = takeCalls();
    QCOMPARE(calls.first(4), (QStringList{"startTrack ", goTo(0), goTo(1), goTo(2)}));
    QCOMPARE(calls.last(2), (QStringList{"pauseTrack ", goTo(index)}));
    QCOMPARE(enabledButtons(), "Play Stop");

    m_page->clickTrackButton("Play");
    m_page->clickTrackButton("Stop");
    calls = takeCalls();
    QCOMPARE(calls.constFirst(), "startTrack ");
    QCOMPARE(calls.last(2), (QStringList{"stopTrack ", goTo(0)}));
    QCOMPARE(enabledButtons(), "Play");
}

void LocationTest::testEndAndLoop()
{
    m_page->clickTrackButton("Play");
    waitFor("the end", [&] { return enabledButtons() == "Play"; });
    QStringList calls = takeCalls();
    QCOMPARE(calls, (QStringList{"startTrack ", goTo(0), goTo(1), goTo(2), goTo(3), goTo(4)}));

    window().clickButton("Loop track");
    chooseSpeed("4x");
    m_page->clickTrackButton("Play");
    waitForCall(goTo(4));
    const qsizetype end = m_journal->position();
    m_journal->waitForCall(goTo(0), end);
    m_page->clickTrackButton("Stop");
    calls = takeCalls();
    QCOMPARE(calls.first(5), (QStringList{"setTrackLooped boolean:1", "setTrackSpeed int32:4",
                                          "stopTrack ", goTo(0), "startTrack "}));
    window().clickButton("Loop track");
    chooseSpeed("1x");
    QCOMPARE(takeCalls(), (QStringList{"setTrackLooped boolean:0", "setTrackSpeed int32:1"}));
}

void LocationTest::testSteering()
{
    // With default intervals, the first point is sent ten times a second for two seconds.
    window().clickButton("Use own track speed");
    m_page->clickTrackButton("Play");
    waitForCall(goTo(1));
    QVERIFY(m_journal->callsSince(m_position).count(goTo(0)) >= 10);
    QCOMPARE(takeCalls(),
             (QStringList{"setTrackIntervalMode boolean:1", "startTrack ", goTo(0), goTo(1)}));

    // A click on the last row starts the track over. A second click on a row repeats the first.
    QStringList calls;
    for (const int row : {4, 4, 3, 3}) {
        m_page->clickRow(row);
        const QStringList restart = row == 4
                                        ? QStringList{goTo(4), "stopTrack ", goTo(0), "startTrack "}
                                        : QStringList{goTo(3), "startTrack "};
        calls = takeCalls();
        QCOMPARE(calls.mid(calls.indexOf(goTo(row)), restart.size()), restart);
        QCOMPARE(enabledButtons(), "Pause Stop");
    }

    window().drag(m_page->progress(), 0.5);
    calls = takeCalls();
    QVERIFY2(calls.indexOf(goTo(2)) >= 0 && calls.indexOf("startTrack ") > calls.indexOf(goTo(2)),
             qPrintable(calls.join('\n')));
    QCOMPARE(enabledButtons(), "Pause Stop");

    window().clickButton("Set");
    calls = takeCalls();
    QCOMPARE(calls.last(3),
             (QStringList{"pauseTrack ", goTo(2),
                          "setPosition double:15.0000000 double:0.1234567 double:1000.25"}));
    window().clickButton("Use own track speed");
    QCOMPARE(takeCalls(), QStringList{"setTrackIntervalMode boolean:0"});
}

void LocationTest::testTable()
{
    open("../../docs/lake.nmea", 90);
    const QQuickItem *table = window().items("QQuickTableView", m_page->table()).constFirst();
    const auto isCurrentRowInTheMiddle = [table] {
        const double middle = table->property("contentY").toDouble() + table->height() / 2;
        const double rowHeight = table->property("contentHeight").toDouble() / 90;
        return int(middle / rowHeight) == gpsManager()->property("currentPositionIndex").toInt();
    };
    // The table cannot go to a row before it is laid out.
    waitFor("all rows",
            [table] { return table->property("contentHeight").toDouble() > table->height(); });
    window().drag(m_page->progress(), 0.5);
    waitFor("the row that was sought", isCurrentRowInTheMiddle);
    m_page->clickRow(43);
    takeCalls();
    QTest::keyClick(view(), Qt::Key_Down);
    QTest::keyClick(view(), Qt::Key_Up);
    QTest::keyClick(view(), Qt::Key_Tab);
    QTest::keyClick(view(), Qt::Key_Down);
    QCOMPARE(takeCalls(), (QStringList{goTo(44), goTo(43)}));

    chooseSpeed("5x");
    m_page->clickTrackButton("Play");
    waitForCall(goTo(45));
    waitFor("the row that plays", isCurrentRowInTheMiddle);
    chooseSpeed("1x");
    open("gga.nmea");
    QCOMPARE(enabledButtons(), "Play");
}

void LocationTest::testReconnection()
{
    QVERIFY(QMetaObject::invokeMethod(gpsManager(), "stopTrack"));
    QVERIFY(QMetaObject::invokeMethod(invoker(), "webSocketConnected"));
    takeCalls();
    m_page->clickRow(2);
    QCOMPARE(takeCalls(), (QStringList{ggaRecord, goTo(2)}));
}

void LocationTest::testErrorReply()
{
    m_page->clickTrackButton("Play");
    control("fail pauseTrack org.vexa.Error.Busy not now");
    m_page->clickTrackButton("Pause");
    waitFor("the table to be empty", [&] { return rowCount() == 0; });
    QVERIFY(m_page->shownFile().isEmpty());
    control("fail pauseTrack");
    QCOMPARE(errorDialog()->property("text").toString(), "org.vexa.Error.Busy not now");

    // The page stops its track after an error. The error of that stop must not stop it again.
    takeCalls();
    control("fail stopTrack org.vexa.Error.Busy not now");
    const qsizetype start = m_position;
    QSignalSpy replies(sensorsManager(), SIGNAL(replyFromEmulatorReceived(QString)));
    QMetaObject::invokeMethod(gpsManager(), "stopTrack");
    const QVariantList error{"org.vexa.Error.Busy not now"};
    waitFor("both replies", [&] { return replies.count(error) == 2; });
    takeCalls();
    QCOMPARE(m_journal->callsSince(start).count("stopTrack "), 2);
    control("fail stopTrack");
    QMetaObject::invokeMethod(errorDialog(), "close");
}

void LocationTest::testLinkLost()
{
    open("gga.nmea");
    m_page->clickTrackButton("Play");
    const MessageBoxAnswers answers(QMessageBox::Ok);
    QSignalSpy disconnected(invoker(), SIGNAL(webSocketDisconnected()));
    QSignalSpy gpsReply(gpsManager(), SIGNAL(replyFromEmulatorReceived(QString)));
    control("relay close");
    waitFor("attempts to reconnect", [&] { return disconnected.size() > 5; });
    QCOMPARE(answers.texts(),
             QStringList{"Emulator connection is lost. Please, run Nimbra OS Emulator if it is "
                         "needed and load the GPS-track again."});
    QCOMPARE(answers.boxes().constFirst().buttons, QMessageBox::Ok);
    QCOMPARE(gpsReply.count(QVariantList{QString()}), 1);
    QCOMPARE(rowCount(), 0);
    QVERIFY(m_page->shownFile().isEmpty());
    QVERIFY(!gpsManager()->property("trackLoaded").toBool());

    m_position = m_journal->position();
    control("relay open");
    waitForCall("setTapSensorValue int32:-1");
    open("gga.nmea");
    QCOMPARE(enabledButtons(), "Play");
    m_page->clickTrackButton("Play");
    waitForCall(goTo(1));
    QCOMPARE(answers.boxes().size(), 1);
}

void LocationTest::testCancelledReading_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("file");
    QTest::newRow("button without effect") << "Cancel" << 5 << "gga.nmea";
    QTest::newRow("late track replaces another one") << "another file" << 5 << "gpsbabel.nmea";
    QTest::newRow("late track fills a cleared table") << "error" << 0 << "";
    QTest::newRow("link lost without a word") << "link lost" << 5 << "gga.nmea";
}

void LocationTest::testCancelledReading()
{
    QFETCH(QString, end);
    QFETCH(int, rows);
    QFETCH(QString, file);
    open("gga.nmea");
    QMetaObject::invokeMethod(invoker(), "webSocketConnected"); // forgets the upload
    takeCalls();
    const QTemporaryDir folder;
    QFile log(folder.filePath("long.nmea"));
    QVERIFY(log.open(QIODevice::WriteOnly));
    log.write(QByteArray("$GPWPL,6000.00,N,03000.00,E,W*5C\n").repeated(500'000));
    log.close();
    const QSignalSpy tasks(Core::ProgressManager::instance(), &Core::ProgressManager::taskStarted);
    m_page->chooseTrack(log.fileName());
    const auto bars = [] { return window().items("QQuickProgressBar"); };
    waitFor("the bar", [&] {
        return !bars().isEmpty() && bars().constFirst()->property("value").toDouble() > 0;
    });
    QCOMPARE(tasks.size(), 1);

    const MessageBoxAnswers answers(QMessageBox::Ok);
    if (end == "Cancel") {
        window().clickButton("Cancel");
    } else if (end == "another file") {
        m_page->openTrack(TEST_DATA "/" + file);
    } else if (end == "error") {
        QMetaObject::invokeMethod(gpsManager(), "replyFromEmulatorReceived",
                                  Q_ARG(QString, "refused"));
    } else {
        control("relay close");
        QVERIFY(answers.waitForBox().text.startsWith("Emulator connection is lost."));
        m_position = m_journal->position();
        control("relay open");
        waitForCall("setTapSensorValue int32:-1");
    }
    waitFor("the bar to vanish", [&] { return bars().isEmpty(); });
    QCOMPARE(rowCount(), rows);
    QCOMPARE(QUrl(m_page->shownFile()).fileName(), file);
    QVERIFY(takeCalls().filter("60.0000000,30.0000000,0.00,0;60.0").isEmpty());
    QCOMPARE(answers.boxes().size(), end == "link lost" ? 1 : 0);
}

void LocationTest::testBadFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message");
    const QByteArray point = "$GPGLL,4916.45,N,12311.12,W,225444,A*31\n";
    const QString unknown = "NMEA file has incorrect points format.\n"
                            "Supported formats: GPRMC, GPGGA, GPGLL, GPWPL.";
    QTest::newRow("a bad line accepted") << "malformed" << point + "\n\n$GPGLL,x\n"
                                         << "Incorrect NMEA file, line: 2";
    QTest::newRow("binary data end the reading")
        << "binary" << QByteArray("\0\xff\xfe\n\x80$GP\0", 9) << unknown + ", line: 2";
    QTest::newRow("the memory fills") << "large" << point << "NMEA file is larger than 300 MB";
    QTest::newRow("blocked by a pipe") << "pipe" << QByteArray() << "NMEA file cannot be read";
    QTest::newRow("a vanished file ignored")
        << "vanished" << QByteArray() << "NMEA file cannot be read";
    QTest::newRow("the name decoded twice") << "100 % #1 \u00e9\u044f" << point << QString();
}

void LocationTest::testBadFile()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name + ".nmea");
    if (name == "pipe") {
        QCOMPARE(mkfifo(path.toLocal8Bit(), 0600), 0);
    } else {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        if (name == "large")
            QVERIFY(file.resize(300'000'001));
    }
    open("gga.nmea");
    m_page->clickTrackButton("Play");
    takeCalls();
    m_page->openTrack(path, name == "vanished");
    if (message.isEmpty()) {
        waitFor("the track", [&] { return rowCount() == 1; });
        const auto labels = window().items("QQuickLabel", m_page->progress()->parentItem());
        QCOMPARE(labels.constLast()->property("text").toString(), "100.00%");
        return;
    }
    waitFor("the message", [&] { return errorDialog()->property("visible").toBool(); });
    QCOMPARE(errorDialog()->property("text").toString(), message);
    QMetaObject::invokeMethod(errorDialog(), "close");
    QCOMPARE(rowCount(), 0);
    QVERIFY(!m_page->shownFile().isEmpty());
    QVERIFY(takeCalls().contains("stopTrack "));
}
