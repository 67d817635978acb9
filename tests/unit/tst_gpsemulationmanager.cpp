#include <location/gpsemulationmanager.h>
#include <support/connectedmanager.h>

#include <QTest>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

struct Fixture : TestSupport::ConnectedManager<GPSEmulationManager>
{
    Fixture()
        : ConnectedManager(u"org.vexa.GeoclueEmulationManagement"_s)
    {}

    QString state()
    {
        return evaluate(u"p = manager.currentPosition; [p.latitude, p.longitude, p.altitude, "
                        "manager.trackLooped, manager.useDefaultInterval, manager.trackSpeed, "
                        "manager.currentPositionIndex, manager.trackLoaded].join(' ')"_s);
    }
};

class GpsEmulationManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void call_data()
    {
        for (const char *column : {"call", "request", "state", "emitted"})
            QTest::addColumn<QString>(column);
        const auto add = [](const char *fault, auto... texts) {
            (QTest::newRow(fault) << ... << QString::fromLatin1(texts));
        };
        add("position with other decimals", "setPosition(-60.5, 30.123456789, 12.345)",
            "setPosition double:-60.5000000 double:30.1234568 double:12.35",
            "-60.5 30.123456789 12.345 false false 1 7 false", "");
        add("local position sent", "setLocalPosition(-1, 1e-9, 3)", "",
            "-1 1e-9 3 false false 1 7 false", "");
        add("latitude with an exponent", "setLatitude(1e-9)", "setLatitude double:0.0000000",
            "1e-9 2.5 3.5 false false 1 7 false", "");
        add("longitude as latitude", "setLongitude(-179.5)", "setLongitude double:-179.5000000",
            "1.5 -179.5 3.5 false false 1 7 false", "");
        add("altitude with group separators", "setAltitude(1234567.891)",
            "setAltitude double:1234567.89", "1.5 2.5 1234567.891 false false 1 7 false", "");
        add("NaN shown locally", "setLocalPosition(1, 2, NaN)", "", "1 2 3.5 false false 1 7 false",
            "");
        add("NaN sent", "setPosition(NaN, NaN, 0)",
            "setPosition double:1.5000000 double:2.5000000 double:0.00",
            "1.5 2.5 0 false false 1 7 false", "");
        add("NaN as a coordinate",
            "setLatitude(NaN) ?? manager.setLongitude(NaN) ?? manager.setAltitude(NaN)", "",
            "1.5 2.5 3.5 false false 1 7 false", "");
        add("place of the track kept", "stopTrack()", "stopTrack ",
            "1.5 2.5 3.5 false false 1 0 false", "index");
        add("no signal without a change", "setTrackLooped(false)", "setTrackLooped boolean:0",
            "1.5 2.5 3.5 false false 1 7 false", "looped");
        add("interval mode as loop", "setTrackIntervalMode(true)", "setTrackIntervalMode boolean:1",
            "1.5 2.5 3.5 false true 1 7 false", "interval");
        add("speed as a text", "setTrackSpeed(5)", "setTrackSpeed int32:5",
            "1.5 2.5 3.5 false false 5 7 false", "speed");
        add("place sent but not kept", "goToPositionOnTrack(41)", "goToPositionOnTrack int32:41",
            "1.5 2.5 3.5 false false 1 41 false", "index");
        add("local place sent", "setCurrentPositionIndex(3)", "",
            "1.5 2.5 3.5 false false 1 3 false", "index");
        add("signal for the first point", "loadTrack([])",
            "loadTrack array:array:double:", "1.5 2.5 3.5 false false 1 0 true", "");
    }

    void call()
    {
        using Manager = GPSEmulationManager;
        QFETCH(const QString, call);
        QFETCH(const QString, request);
        QFETCH(const QString, state);
        QFETCH(const QString, emitted);
        Fixture fixture;
        Manager &manager = fixture.manager;
        manager.setLocalPosition(1.5, 2.5, 3.5);
        manager.setCurrentPositionIndex(7);
        QString signal;
        connect(&manager, &Manager::trackLoopedChanged, this, [&] { signal += u"looped"_s; });
        connect(&manager, &Manager::defaultIntervalUsingChanged, this,
                [&] { signal += u"interval"_s; });
        connect(&manager, &Manager::trackSpeedChanged, this, [&] { signal += u"speed"_s; });
        connect(&manager, &Manager::currentPositionIndexChanged, this,
                [&] { signal += u"index"_s; });

        QCOMPARE(fixture.evaluate(u"manager."_s + call), u"undefined"_s);
        QCOMPARE(fixture.takeRequests(), request);
        QCOMPARE(fixture.state(), state);
        QCOMPARE(signal, emitted);
        // each shown value is also saved
        QCOMPARE(SettingsManager().readGpsLatitude(), manager.currentPosition()->latitude());
        QCOMPARE(SettingsManager().readGpsLongitude(), manager.currentPosition()->longitude());
        QCOMPARE(SettingsManager().readGpsAltitude(), manager.currentPosition()->altitude());
    }

    void loadTrack_data()
    {
        QTest::addColumn<QString>("points");
        QTest::addColumn<QString>("text");
        QTest::newRow("separator at the end")
            << u"{latitude: 60, longitude: 30, altitude: 12.5, interval: 0},"
               "{latitude: 60.001, longitude: 30.002, altitude: 13, interval: 1000}"_s
            << u"60.0000000,30.0000000,12.50,0;60.0010000,30.0020000,13.00,1000"_s;
        QTest::newRow("texts taken for 0")
            << u"{latitude: '-1.5', longitude: '2e1', altitude: '3', interval: '2000'}"_s
            << u"-1.5000000,20.0000000,3.00,2000"_s;
        QTest::newRow("texts read by the locale")
            << u"{latitude: '1,000.00', longitude: '1,5', altitude: 'nan', interval: ''}"_s
            << u"0.0000000,0.0000000,0.00,0"_s;
        QTest::newRow("point without keys left out")
            << u"{longitude: 1}"_s << u"0.0000000,1.0000000,0.00,0"_s;
        QTest::newRow("interval with another precision")
            << u"{interval: 999999}, {interval: 3600000}"_s
            << u"0.0000000,0.0000000,0.00,999999;0.0000000,0.0000000,0.00,3.6e+06"_s;
    }

    void loadTrack()
    {
        QFETCH(const QString, points);
        QFETCH(const QString, text);
        Fixture fixture;
        QCOMPARE(fixture.evaluate(u"manager.loadTrack([%1])"_s.arg(points)), u"undefined"_s);
        QCOMPARE(fixture.takeRequests(), u"loadTrack array:array:double:"_s + text);
    }

    void connectionSetsUpTheEmulator()
    {
        Fixture fixture;
        fixture.manager.setPosition(60.5, -30.25, 15);
        fixture.manager.setTrackLooped(true);
        fixture.manager.setTrackSpeed(3);
        fixture.manager.loadTrack({});
        fixture.manager.goToPositionOnTrack(9);
        fixture.manager.currentPosition()->setLatitude(1); // not saved, so it is lost
        QVERIFY(!fixture.takeRequests().isEmpty());

        QVERIFY(fixture.reconnect());
        QCOMPARE(fixture.takeRequests(),
                 u"stopTrack ;setTrackLooped boolean:1;setTrackIntervalMode boolean:0;"
                 "setTrackSpeed int32:3;"
                 "setPosition double:60.5000000 double:-30.2500000 double:15.00"_s);
        QCOMPARE(fixture.state(), u"60.5 -30.25 15 true false 3 0 false"_s);
    }
};

QTEST_GUILESS_MAIN(GpsEmulationManagerTest)

#include "tst_gpsemulationmanager.moc"
