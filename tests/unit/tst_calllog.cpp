#include <link/argumentencoding.h>
#include <link/calllog.h>
#include <link/calltexts.h>
#include <link/methodarguments.h>
#include <link/remotedbusinvokerservice.h>
#include <location/gpsemulationmanager.h>
#include <sensors/sensorsemulationmanager.h>
#include <support/connectedmanager.h>

#include <QFile>
#include <QJsonDocument>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;
using Outcome = LoggedCall::Outcome;

static QString compact(const QJsonArray &values)
{
    return QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact));
}

static QJsonArray parsed(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).array();
}

/// The row of a method in the documents.
static QString tableRow(const ServiceMethod &method)
{
    static const QMap<MethodArgument::Type, QString> types{
        {MethodArgument::Type::Int32, u"i"_s},    {MethodArgument::Type::Double, u"d"_s},
        {MethodArgument::Type::Boolean, u"b"_s},  {MethodArgument::Type::String, u"s"_s},
        {MethodArgument::Type::Points, u"aad"_s},
    };
    QStringList arguments;
    for (const MethodArgument &argument : method.arguments) {
        const QString limits = argument.texts.empty() ? MethodArguments::limits(argument) : u""_s;
        arguments << types.value(argument.type) + u' ' + argument.name
                         + (limits.isEmpty() ? QString() : u" (%1)"_s.arg(limits));
    }
    QString text = arguments.isEmpty() ? u"none"_s : arguments.join(u", "_s);
    if (!method.result.isEmpty())
        text += u"; returns "_s + method.result;
    return u"| `%1` | %2 |\n"_s.arg(method.name, text);
}

class CallLogTest : public QObject
{
    Q_OBJECT

    static QString outcomes(const CallLog &log)
    {
        static constexpr QStringView letters = u"WARLDN"; // the first letters of the outcomes
        QString text;
        for (qint64 serial = log.begin(); serial < log.end(); ++serial)
            text += letters[qsizetype(log.at(serial).outcome)];
        return text;
    }

private Q_SLOTS:
    void repliesFindTheirCalls()
    {
        TestSupport::RecordingRelay relay;
        RemoteDBusInvokerService link;
        CallLog log(&link);
        const QString setAls = requestAddress(sensorsService) + u"setAlsValue int32:7"_s;
        link.sendRequest(setAls);
        QVERIFY(relay.connectLink(link));
        QSignalSpy finished(&log, &CallLog::finished);
        link.sendRequest(setAls);
        log.add(*findMethod(cameraService, u"stop"), u"[]"_s);
        for (int i = 0; i < 4; ++i)
            link.sendRequest(setAls);
        QCOMPARE(relay.takeRequests(link).size(), 5); // its mark is a call, too
        relay.reply(u"enabled:als:1::"_s);
        relay.reply(u"setAlsValue:7::org.x.Busy:later"_s);
        relay.reply(u"gibberish"_s);
        relay.reply(u"loadTrack:%1:::"_s.arg(QString(200'000, u'7')));
        QTRY_COMPARE(finished.size(), 4);
        relay.dropClients();
        QTRY_COMPARE(outcomes(log), u"DANRRALL"_s);
        QCOMPARE(log.at(1).reply, u"1"_s);
        QCOMPARE(log.at(3).reply, u"org.x.Busy later"_s);
        QCOMPARE(log.at(4).reply, u"gibberish"_s);
        QVERIFY(log.latencies().percentile99 >= log.latencies().median);
        QVERIFY(log.latencies().median.count() > 0);
        QCOMPARE(log.totals().calls, 7);
        QCOMPARE(log.totals().refused, 2);
        QCOMPARE(log.totals().lost, 2);
        QCOMPARE(log.totals().dropped, 1);
        QCOMPARE(log.at(0).method, findMethod(sensorsService, u"setAlsValue"));
        QCOMPARE(log.at(0).arguments, u"int32:7"_s);
        QCOMPARE(log.at(7).method, nullptr);
        QCOMPARE_GE(log.callsPerSecond(), 7); // connecting may take longer than a second
        QTRY_VERIFY(link.isConnected());
        link.sendRequest(setAls);
        link.connectToEmulator(); // its reply does not come over the new connection
        QVERIFY(outcomes(log).endsWith(u'L'));
    }

    // A reply to a call that is no longer kept must not go to a later call.
    void forgottenCallsTakeTheirReplies()
    {
        TestSupport::RecordingRelay relay;
        RemoteDBusInvokerService link;
        CallLog log(&link);
        QVERIFY(relay.connectLink(link));
        link.sendRequest(u"forgotten"_s);
        log.clear();
        link.sendRequest(u"kept"_s);
        QCOMPARE(relay.takeRequests(link).size(), 2);
        QSignalSpy finished(&log, &CallLog::finished);
        relay.reply(u"x::::org.x.Refused:"_s);
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(outcomes(log), u"WW"_s);
        QCOMPARE(log.totals().refused, 0);
    }

    void keepsAndCopiesNoMoreThanItsLimits()
    {
        TestSupport::RecordingRelay relay;
        RemoteDBusInvokerService link;
        CallLog log(&link);
        const QString track = requestAddress(locationService) + u"loadTrack array:array:double:"_s
                              + QString(1'000'000, u'7');
        for (int i = 0; i < 1000; ++i)
            link.sendRequest(track);
        QVERIFY(log.end() - log.begin() <= CallLog::longestTexts / CallLog::longestText);
        QVERIFY(log.end() - log.begin() >= CallLog::longestTexts / CallLog::longestText - 1);
        QCOMPARE(log.at(log.begin()).arguments.size(), CallLog::longestText);
        QCOMPARE(log.at(log.begin()).omitted,
                 1'000'000 + u"array:array:double:"_s.size() - CallLog::longestText);
        for (int i = 0; i < CallLog::capacity + 10; ++i)
            link.sendRequest(u"x"_s);
        QCOMPARE(log.end() - log.begin(), CallLog::capacity);
        QCOMPARE(log.totals().calls, CallLog::capacity + 1010);
    }

    // What the managers write, read back and written again, is the same text.
    void everyCallOfTheManagersIsDescribed()
    {
        TestSupport::ConnectedManager<SensorsEmulationManager> sensors(sensorsService.dbusName);
        GPSEmulationManager location;
        location.setRdbusinvoker(&sensors.link);
        CallLog log(&sensors.link);
        sensors.manager.setDefaultValues();
        for (const int value : {-1, 0, 3}) {
            sensors.manager.setAccelerometerX(value);
            sensors.manager.setAccelerometerY(value);
            sensors.manager.setAccelerometerZ(value);
            sensors.manager.setGyroscopeX(value / 3.0);
            sensors.manager.setGyroscopeY(value / 3.0);
            sensors.manager.setGyroscopeZ(value / 3.0);
            sensors.manager.setMagnetometerX(value * 1e-7 / 3);
            sensors.manager.setMagnetometerY(value * 1e-7);
            sensors.manager.setMagnetometerZ(value * 1e-7);
            location.setLatitude(value / 3.0);
            location.setLongitude(value);
            location.setAltitude(value / 7.0);
        }
        sensors.manager.checkSensorState(u"als"_s);
        sensors.manager.disableSensor(u"als"_s);
        sensors.manager.enableSensor(u"als"_s);
        location.setupGPSData();
        const QVariantMap point{{u"latitude"_s, 60.1234567},
                                {u"longitude"_s, -30.5},
                                {u"altitude"_s, 12.345},
                                {u"interval"_s, 1234567.0}};
        location.loadTrack({point, point});
        location.loadTrack({});
        location.goToPositionOnTrack(1);
        location.startTrack();
        location.pauseTrack();
        QSet<const ServiceMethod *> seen;
        for (qint64 serial = log.begin(); serial < log.end(); ++serial) {
            const LoggedCall &call = log.at(serial);
            QVERIFY2(call.method, qPrintable(call.arguments));
            seen.insert(call.method);
            const QJsonArray values = MethodArguments::toJson(*call.method, call.arguments);
            const MethodArguments::Encoded again = MethodArguments::fromJson(*call.method, values);
            QCOMPARE(again.error, QString());
            QCOMPARE(again.text, call.arguments);
        }
        QCOMPARE(seen.size(),
                 qsizetype(sensorsService.methods.size() + locationService.methods.size()));
    }

    void wrongArguments_data()
    {
        QTest::addColumn<const Service *>("service");
        QTest::addColumn<QString>("method");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("error"); // its end; empty if the call is right
        const auto row = [](const char *fault, const Service &service, const QString &method,
                            const QString &values, const QString &error) {
            QTest::newRow(fault) << &service << method << values << error;
        };
        row("missing argument", sensorsService, u"setAccelerometerValues"_s, u"[1,2]"_s,
            u"setAccelerometerValues X (mg) Y (mg) Z (mg)"_s);
        row("one too many", locationService, u"stopTrack"_s, u"[1]"_s, u": stopTrack"_s);
        row("fraction", sensorsService, u"setAlsValue"_s, u"[1.5]"_s, u"a whole number, not 1.5"_s);
        row("overflow", sensorsService, u"setAlsValue"_s, u"[2147483648]"_s,
            u"a whole number, not 2147483648"_s);
        row("number as text", locationService, u"setLatitude"_s, u"[\"1\"]"_s,
            u"a number, not \"1\""_s);
        row("below the minimum", sensorsService, u"setAlsValue"_s, u"[-2]"_s,
            u"at least -1, not -2"_s);
        row("above the maximum", sensorsService, u"setMagnetometerCalibrationLevel"_s, u"[4]"_s,
            u"level of setMagnetometerCalibrationLevel must be 0 to 3, not 4"_s);
        row("pole passed", locationService, u"setPosition"_s, u"[90.1,0,0]"_s,
            u"-90 to 90, not 90.1"_s);
        row("unknown sensor", sensorsService, u"enabled"_s, u"[\"sonar\"]"_s,
            u"proximity, tap, not \"sonar\""_s);
        row("flag as number", locationService, u"setTrackLooped"_s, u"[1]"_s,
            u"true or false, not 1"_s);
        row("point of three numbers", locationService, u"loadTrack"_s, u"[[[1,2,3]]]"_s,
            u"not [[1,2,3]]"_s);
        row("rate left out", cameraService, u"startCamera"_s, u"[\"Front camera\",640,480]"_s, {});
        row("no camera", cameraService, u"startCamera"_s, u"[]"_s,
            u"startCamera NAME WIDTH (px, at least 1) HEIGHT (px, at least 1) FRAMERATE (1/s)"_s);
    }

    void wrongArguments()
    {
        QFETCH(const Service *, service);
        QFETCH(const QString, method);
        QFETCH(const QString, values);
        QFETCH(const QString, error);
        const ServiceMethod *description = findMethod(*service, method);
        const auto encoded = MethodArguments::fromJson(*description, parsed(values));
        QVERIFY2(encoded.error.endsWith(error), qPrintable(encoded.error));
        QCOMPARE(encoded.error.isEmpty(), error.isEmpty());
        if (error.isEmpty())
            QCOMPARE(compact(MethodArguments::toJson(*description, encoded.text)), values);
    }

    // What is copied as a command must make the same call in a shell.
    void copiedTexts_data()
    {
        QTest::addColumn<const ServiceMethod *>("method");
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("csv"); // without the time
        QTest::newRow("minus lost") << findMethod(locationService, u"setPosition")
                                    << u"double:-60.5000000 double:30.0000000 double:-1.50"_s
                                    << u"emulationctl call location setPosition -60.5 30 -1.5"_s
                                    << u"location,setPosition,\"[-60.5,30,-1.5]\",,"_s;
        QTest::newRow("points not quoted")
            << findMethod(locationService, u"loadTrack") << u"array:array:double:1,2,3,4"_s
            << u"emulationctl call location loadTrack '[[1,2,3,4]]'"_s
            << u"location,loadTrack,\"[[[1,2,3,4]]]\",,"_s;
        QTest::newRow("quote in a name ends the word")
            << findMethod(cameraService, u"startCamera")
            << u"[\"Eve's \\\"cam\\\"\",640,480,\"30/1\"]"_s
            << u"emulationctl camera start 'Eve'\\''s \"cam\"' --size 640x480 --rate 30/1"_s
            << u"camera,startCamera,\"[\"\"Eve's \\\"\"cam\\\"\"\"\",640,480,\"\"30/1\"\"]\",,"_s;
        QTest::newRow("stop starts something")
            << findMethod(cameraService, u"stop") << u"[]"_s << u""_s << u"camera,stop,[],,"_s;
    }

    void copiedTexts()
    {
        QFETCH(const ServiceMethod *, method);
        QFETCH(const QString, arguments);
        RemoteDBusInvokerService link;
        CallLog log(&link);
        log.add(*method, arguments);
        QTEST(CallTexts::command(log.at(0)), "command");
        QTEST(CallTexts::csvLine(log, log.at(0)).section(u',', 1), "csv");
    }

    void textsForPeople()
    {
        const ServiceMethod &setPosition = *findMethod(locationService, u"setPosition");
        const auto texts = MethodArguments::fromTexts(setPosition, {u"-60.5"_s, u"3e1"_s, u"0"_s});
        QCOMPARE(texts.text, u"double:-60.5000000 double:30.0000000 double:0.00"_s);
        QCOMPARE(MethodArguments::description(setPosition, texts.text),
                 u"latitude -60.5 deg, longitude 30 deg, altitude 0 m"_s);
        QVERIFY(
            !MethodArguments::fromTexts(setPosition, {u"1,5"_s, u"0"_s, u"nan"_s}).error.isEmpty());
        const ServiceMethod &loadTrack = *findMethod(locationService, u"loadTrack");
        QCOMPARE(MethodArguments::fromTexts(loadTrack, {u"[[1,2,3,4]]"_s}).text,
                 u"array:array:double:1.0000000,2.0000000,3.00,4"_s);
    }

    void documentsHaveEveryMethod()
    {
        QFile page(QStringLiteral(DOCUMENTS "/emulator-link.md"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll());
        for (const Service *service : {&sensorsService, &locationService}) {
            QString table = u"| Method | Arguments |\n|---|---|\n"_s;
            for (const ServiceMethod &method : service->methods)
                table += tableRow(method);
            QVERIFY2(text.contains(table + u'\n'), qPrintable(table));
        }
    }
};

QTEST_GUILESS_MAIN(CallLogTest)

#include "tst_calllog.moc"
