#include <support/temporarysdk.h>

#include <ravik/virtualmachine.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

// What each command prints and sends. "calls" are method and arguments, separated by ";".
struct Command
{
    const char *fault;
    const char *arguments;
    int status;
    const char *calls;
    const char *output; // a regular expression for standard output and standard error
};

static constexpr Command commandLines[] = {
    {"unit of g lost", "set accelerometer 0.5 0 -1.001", 0,
     "setAccelerometerValues int32:500 int32:0 int32:-1001", "^$"},
    {"unit of uT lost", "set magnetometer 25 -3 0", 0,
     "setMagnetometerValues double:2.5e-05 double:-3e-06 double:0", "^$"},
    {"azimuth not as in the window", "set compass 90", 0,
     "setAccelerometerValues int32:0 int32:0 int32:1000;"
     "setMagnetometerValues double:-4.3589e-05 double:2.66906e-21 double:0",
     "^$"},
    {"name of a level taken for a number", "set als Sunny", 0, "setAlsValue int32:2500", "^$"},
    {"near and far swapped", "set proximity far", 0, "setProximitySensorValue int32:10", "^$"},
    {"z and y of taps swapped", "set tap Z_Neg", 0, "setTapSensorValue int32:5", "^$"},
    {"whole number rounded", "set als 1.5", 2, "", "a whole number, not 1.5"},
    {"south taken for an option", "position -60.05 -30.18 -1.5 --verbose", 0,
     "setPosition double:-60.0500000 double:-30.1800000 double:-1.50",
     "^location setPosition latitude -60.05 deg, .*: answered, \\d+\\.\\d\\d ms\n$"},
    {"altitude required", "--json position 1 2", 0,
     "setPosition double:1.0000000 double:2.0000000 double:0.00",
     "^\\{\"arguments\":\\[1,2,0\\],\"latency\":[\\d.]+,\"method\":\"setPosition\","
     "\"service\":\"location\"\\}\n$"},
    {"longitude first", "position 30 95", 0,
     "setPosition double:30.0000000 double:95.0000000 double:0.00", "^$"},
    {"pole passed", "position 95 30", 2, "", "latitude of setPosition must be -90 to 90"},
    {"decimal comma", "position 60,05 30,18", 2, "", "must be a number, not \"60,05\""},
    {"half of it done", "sensor disable als sonar", 2, "", "not \"sonar\""},
    {"second name lost", "sensor disable als tap", 0,
     "disableSensor string:als;disableSensor string:tap", "^$"},
    {"state not printed", "call sensors enabled als", 0, "enabled string:als", "^[01]\n$"},
    {"refusal not told", "call location goToPositionOnTrack 7", 1, "goToPositionOnTrack int32:7",
     "^emulationctl: .*IndexOutOfRange The track of 0 points has no point 7\n$"},
    {"unknown method sent", "call sensors explode", 2, "", "has no method \"explode\", only:\n"},
    {"no link waits for ever", "--port 5999 --timeout 0.3 status", 3, "",
     "no emulator on port 5999"},
    {"no command", "", 2, "", "No command is given"},
    {"unknown option", "status --loud", 2, "", "loud.*\nUsage: emulationctl status\n"},
    {"port of letters", "--port x status", 2, "", "--port must be 1 to 65535, not x"},
    {"track that is no track", "track /etc/passwd", 2, "", "incorrect points format"},
    {"text streamed", "video /etc/passwd --for 1", 2, "", "is no VP8 or VP9 video"},
    {"bad recording played", "play BAD", 2, "", "bad-lines.jsonl: Line 2: this is not the header"},
    {"recording not played", "play SESSION --services location --start-offset 1.03 --rate 5", 0,
     "loadTrack array:array:double:60.0500000,30.1800000,12.50,0;60.0510000,30.1800000,12.50,500;"
     "60.0520000,30.1810000,13.00,500;startTrack ;goToPositionOnTrack int32:2;stopTrack ",
     "^4 sent, 0 refused, 0 lost; \\d+\\.\\d ms late at most, 99 % at most \\d+\\.\\d ms\n$"},
    {"place of one number", "play SESSION --move-to 60", 2, "", "--move-to must be"},
    {"service misspelled", "play SESSION --services gps", 2, "", "no service \"gps\""},
    {"rate of 0", "play SESSION --rate 0", 2, "", "--rate must be 0.1 to 100, not 0"},
    {"end without a track's end", "track x.nmea --loop --until-end", 2, "", "exclude each other"},
    {"forms not as JSON", "--json set", 0, "",
     "^(\\{\"reading\":\"\\w+\",\"usage\":\".*\"\\}\n){9}$"},
    {"missing file taken for a video", "video /nonexistent", 2, "", "There is no file"},
    {"counts wrong", "info SESSION", 0, "",
     "^10 calls in 1\\.036 s, recorded at 2026-11-22T08:00:00\\.000Z\n +3  location goToPos"},
    {"home not moved away", "move SESSION 10 20", 0, "",
     "\\[\\[\\[10,20,12\\.5,0\\],\\[10\\.001,20,12\\.5,500\\]"},
    {"wrong half of the earth or checksum", "move TRACK -33.5 -70", 0, "",
     "^\\$GPGGA,120000.00,3330.00000,S,07000.00000,W,1,08,0.9,12.5,M,17.0,M,,\\*55\r\n"
     "\\$GPRMC,120000.00,A,3330.00000,S,07000.00000,W,"},
    {"lines that tell the place", "move TRACK 10 20", 0, "", "^(\\$GP(GGA|RMC|GLL),[^$]*)+$"},
    {"carry lost or second place kept", "move PLACES 9.9999999999 20", 0, "",
     "^\\$GPGLL,1000.000,N,02000.000,E,120000,A\r\n$"},
    {"neither of both", "move /etc/passwd 10 20", 2, "", "neither a recording nor a track"},
    {"speed of 6", "track x.nmea --speed 6", 2, "", "--speed must be 1 to 5, not 6"},
};

static constexpr char track[] = "$GPGLL,6000.00,N,03000.00,E,120000,A\n"
                                "$GPGLL,6001.00,N,03000.00,E,120001,A\n"
                                "$GPGLL,6002.00,N,03000.00,E,120002,A\n";

class EmulationCtlTest : public QObject
{
    Q_OBJECT

    QStringList takeCalls()
    {
        QStringList calls;
        const QByteArrayList lines = m_sdk.journal().sliced(m_read).split('\n');
        for (const QByteArray &line : lines) {
            const QJsonObject entry = QJsonDocument::fromJson(line).object();
            if (entry.value(u"event").toString() == u"call"_s)
                calls << entry.value(u"text").toString().section(u' ', 4);
        }
        m_read = m_sdk.journal().size();
        return calls;
    }

    static void start(QProcess &process, const QStringList &arguments)
    {
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(EMULATIONCTL), arguments);
    }

    TestSupport::TemporarySdk m_sdk;
    qsizetype m_read = 0;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_sdk.addPortForwarding(u"relay"_s, u"tcp"_s, 5454, 1234));
        QVERIFY2(m_sdk.start(), qPrintable(m_sdk.machine().errorString()));
    }

    void command_data()
    {
        QTest::addColumn<const Command *>("row");
        for (const Command &row : commandLines)
            QTest::newRow(row.fault) << &row;
    }

    void command()
    {
        QFETCH(const Command *, row);
        takeCalls();
        QProcess process;
        QString arguments = QString::fromLatin1(row->arguments);
        arguments.replace(u"SESSION"_s, QStringLiteral(DOCUMENTS "/session.emulation.jsonl"));
        arguments.replace(u"PLACES"_s, QStringLiteral(TEST_DATA "/places.nmea"));
        arguments.replace(u"TRACK"_s, QStringLiteral(DOCUMENTS "/lake.nmea"));
        arguments.replace(u"BAD"_s, QStringLiteral(TEST_DATA "/bad-lines.jsonl"));
        start(process, arguments.split(u' ', Qt::SkipEmptyParts));
        QVERIFY(process.waitForFinished());
        const QString output = QString::fromLocal8Bit(process.readAll());
        QCOMPARE(process.exitCode(), row->status);
        QCOMPARE(takeCalls().join(u';'), QString::fromLatin1(row->calls));
        const QRegularExpression expected(QString::fromLatin1(row->output));
        QVERIFY2(expected.match(output).hasMatch(), qPrintable(output));
    }

    void statusShowsTheSensors()
    {
        QProcess process;
        start(process, {u"--json"_s, u"status"_s});
        QVERIFY(process.waitForFinished());
        const QByteArrayList lines = process.readAll().trimmed().split('\n');
        QCOMPARE(lines.size(), 1 + 8);
        QCOMPARE(lines.at(0), "{\"link\":true,\"port\":5454}");
        QCOMPARE(lines.at(3), "{\"enabled\":true,\"sensor\":\"compass\"}");
    }

    void trackIsPlayedToItsEnd()
    {
        takeCalls();
        QProcess process;
        start(process, {u"track"_s, u"-"_s, u"--interval"_s, u"100"_s, u"--until-end"_s});
        process.write(track);
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        const QStringList calls = takeCalls();
        QCOMPARE(calls.first(7),
                 (QStringList{u"loadTrack array:array:double:60.0000000,30.0000000,0.00,100;"
                              "60.0166667,30.0000000,0.00,100;60.0333333,30.0000000,0.00,100"_s,
                              u"stopTrack "_s, u"goToPositionOnTrack int32:0"_s,
                              u"setTrackLooped boolean:0"_s, u"setTrackIntervalMode boolean:0"_s,
                              u"setTrackSpeed int32:1"_s, u"startTrack "_s}));
        QVERIFY(calls.contains(u"goToPositionOnTrack int32:1"_s));
        QCOMPARE(calls.last(), u"goToPositionOnTrack int32:2"_s);
    }

    void refusalEndsTheRecording_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<bool>("ends");
        QTest::newRow("option ignored") << QStringList{u"--stop-on-error"_s} << true;
        QTest::newRow("always ends") << QStringList() << false;
    }

    void refusalEndsTheRecording()
    {
        QFETCH(const QStringList, options);
        takeCalls();
        QCOMPARE(m_sdk.requestFault("fail setAlsValue org.x.Busy later"), u"ok"_s);
        QProcess process;
        start(process, QStringList{u"play"_s, QStringLiteral(DOCUMENTS "/session.emulation.jsonl")}
                           + options);
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 1);
        QVERIFY(process.readAll().contains("setAlsValue: org.x.Busy later"));
        QTEST(!takeCalls().contains(u"stopTrack "_s), "ends");
        QCOMPARE(m_sdk.requestFault("fail setAlsValue"), u"ok"_s);
    }

    void interruptionStopsTheTrack()
    {
        takeCalls();
        QProcess process;
        start(process, {u"track"_s, u"-"_s, u"--loop"_s});
        process.write(track);
        process.closeWriteChannel();
        QTRY_VERIFY(m_sdk.journal().sliced(m_read).contains("startTrack"));
        takeCalls();
        ::kill(pid_t(process.processId()), SIGINT);
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(takeCalls().contains(u"stopTrack "_s));
    }

    void lostLinkEndsIt()
    {
        takeCalls();
        QProcess process;
        start(process, {u"track"_s, u"/dev/stdin"_s, u"--loop"_s});
        process.write(track);
        process.closeWriteChannel();
        QTRY_VERIFY(m_sdk.journal().sliced(m_read).contains("startTrack"));
        QCOMPARE(m_sdk.requestFault("relay close"), u"ok"_s);
        QTRY_COMPARE(process.state(), QProcess::NotRunning);
        QCOMPARE(process.exitCode(), 3);
        QCOMPARE(m_sdk.requestFault("relay open"), u"ok"_s);
        QCOMPARE(m_sdk.requestFault("relay delay 2000"), u"ok"_s);
        start(process, {u"--timeout"_s, u"0.5"_s, u"status"_s});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 3);
        QCOMPARE(m_sdk.requestFault("relay delay 0"), u"ok"_s);
    }
};

QTEST_GUILESS_MAIN(EmulationCtlTest)

#include "tst_emulationctl.moc"
