#include <link/remotedbusinvokerservice.h>
#include <location/gpsemulationmanager.h>
#include <sensors/sensorsemulationmanager.h>
#include <support/idesettings.h>
#include <support/temporarysdk.h>

#include <ravik/virtualmachine.h>

#include <QSignalSpy>
#include <QTest>
#include <QWebSocket>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// S and L are the addresses of the sensor and the location service, ERROR the prefix of their
// errors, DBUS that of D-Bus's errors, INVALID the relay's reply to an invalid request. The order
// matters.
struct Exchange
{
    const char *fault;
    const char *request;
    const char *reply; // up to the error's name
};

static constexpr Exchange exchanges[] = {
    {"off is lost", "S disableSensor string:als", "disableSensor:als::"},
    {"off is not told", "S enabled string:als", "enabled:als:0:"},
    {"on is lost", "S enableSensor string:als", "enableSensor:als::"},
    {"on is not told", "S enabled string:als", "enabled:als:1:"},
    {"unknown sensor taken", "S enabled string:sonar", "enabled:sonar::ERROR.UnknownSensor"},
    {"arguments not joined by bars", "S setAccelerometerValues int32:10 int32:-3 int32:981",
     "setAccelerometerValues:10|-3|981::"},
    {"number not repeated as it came", "S setGyroscopeX double:1.50e-07",
     "setGyroscopeX:1.50e-07::"},
    {"unknown method taken", "S explode ", "explode:::DBUS.UnknownMethod"},
    {"wrong type taken", "S setTapSensorValue double:-1",
     "setTapSensorValue:-1::DBUS.UnknownMethod"},
    {"last space required", "L pauseTrack", "pauseTrack:::"},
    {"index not checked", "L goToPositionOnTrack int32:0",
     "goToPositionOnTrack:0::ERROR.IndexOutOfRange"},
    {"track lost", "L loadTrack array:array:double:60.0,30,12.50,0;1,2,3,4",
     "loadTrack:60.0,30,12.50,0;1,2,3,4::"},
    {"point of three numbers taken", "L loadTrack array:array:double:1,2,3;1,2,3,4",
     "loadTrack:1,2,3;1,2,3,4::ERROR.InvalidTrack"},
    {"unknown service taken", "system org.nobody / org.nobody x ", "x:::DBUS.ServiceUnknown"},
    {"empty request passed on", "", "INVALID"},
    {"request without a method passed on", "system a.b / a.b", "INVALID"},
    {"other bus taken", "session a.b / a.b x ", "INVALID"},
    {"bad path ends the connection to D-Bus", "system a.b x a.b x ", "INVALID"},
    {"bad method name passed on", "S set-x ", "INVALID"},
    {"two spaces taken", "S enabled  string:als", "INVALID"},
    {"unknown type taken", "S enabled float:1", "INVALID"},
    {"integer overflows", "S setAlsValue int32:2147483648", "INVALID"},
    {"NaN passed on", "L setAltitude double:nan", "INVALID"},
    {"flag of 2 taken", "L setTrackLooped boolean:2", "INVALID"},
    {"empty point taken", "L loadTrack array:array:double:1,2,3,4;", "INVALID"},
};

/// \a text in full. ERROR is that of the service \a letter.
static QString expanded(const char *text, char letter = 'S')
{
    const QString service = letter == 'S' ? u"org.vexa.SensorfwEmulationManagement"_s
                                          : u"org.vexa.GeoclueEmulationManagement"_s;
    QString line = QString::fromLatin1(text);
    if (line.startsWith(u"S ") || line.startsWith(u"L ")) {
        const QString path = QString(service).replace(u'.', u'/');
        line.replace(0, 1, u"system %1 /%2 %1"_s.arg(service, path));
    }
    return line.replace(u"ERROR"_s, QString(service + u".Error"_s))
        .replace(u"DBUS"_s, u"org.freedesktop.DBus.Error"_s)
        .replace(u"INVALID"_s, u":::org.vexa.RemoteDBusInvoker.Error.InvalidRequest"_s);
}

class EmulatorTest : public QObject
{
    Q_OBJECT

    bool connectClient()
    {
        m_replies.clear();
        m_client.open(QUrl(u"ws://127.0.0.1:5454"_s));
        const auto isDecided = [this] {
            return m_client.state() == QAbstractSocket::ConnectedState
                   || m_client.state() == QAbstractSocket::UnconnectedState;
        };
        return QTest::qWaitFor(isDecided) && m_client.isValid();
    }

    QString ask(const QString &request)
    {
        m_replies.clear();
        m_client.sendTextMessage(request);
        return QTest::qWaitFor([this] { return !m_replies.isEmpty(); }) ? m_replies.constFirst()
                                                                        : u"no reply"_s;
    }

    TestSupport::TemporarySdk m_sdk;
    QWebSocket m_client;
    QStringList m_replies;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_sdk.addPortForwarding(u"relay"_s, u"tcp"_s, 5454, 1234));
        QVERIFY2(m_sdk.start(), qPrintable(m_sdk.machine().errorString()));
        connect(&m_client, &QWebSocket::textMessageReceived, this,
                [this](const QString &line) { m_replies.append(line); });
    }

    void init() { QVERIFY(connectClient()); }
    void cleanup() { m_client.abort(); }

    void reply_data()
    {
        QTest::addColumn<QString>("request");
        QTest::addColumn<QString>("expected");
        for (const Exchange &row : exchanges) {
            QTest::newRow(row.fault)
                << expanded(row.request, row.request[0]) << expanded(row.reply, row.request[0]);
        }
    }

    void reply()
    {
        QFETCH(const QString, request);
        const QStringList fields = ask(request).split(u':');
        QTEST(fields.first(4).join(u':'), "expected");
        QCOMPARE(fields.at(3).isEmpty(), fields.mid(4).join(u':').isEmpty()); // an error has a text
    }

    // Replies that the relay gives at once must not overtake those of the bus.
    void repliesComeInOrder()
    {
        QStringList expected;
        for (int i = 0; i < 100; ++i) {
            m_client.sendTextMessage(expanded("S setAlsValue int32:") + QString::number(i));
            m_client.sendTextMessage(expanded("S enabled string:als") + QChar::Null);
            m_client.sendTextMessage(expanded("S ") + QString(256, u'x')); // too long for D-Bus
            m_client.sendBinaryMessage("system");
            expected << u"setAlsValue:%1::"_s.arg(i);
            expected.insert(expected.size(), 3, expanded("INVALID"));
        }
        QTRY_COMPARE(m_replies.size(), expected.size());
        for (QString &reply : m_replies)
            reply = reply.section(u':', 0, 3);
        QCOMPARE(m_replies, expected);
    }

    void faults()
    {
        const QString request = expanded("S setAlsValue int32:1");
        QCOMPARE(m_sdk.requestFault("fail setAlsValue org.x.Busy try it later"), u"ok"_s);
        QCOMPARE(ask(request), u"setAlsValue:1::org.x.Busy:try it later"_s);
        QCOMPARE(m_sdk.requestFault("fail setAlsValue"), u"ok"_s);
        QCOMPARE(m_sdk.requestFault("relay answer what: ever"), u"ok"_s);
        QCOMPARE(ask(request), u"what: ever"_s);
        QCOMPARE(ask(request), u"setAlsValue:1:::"_s); // the fault is used up
        QVERIFY(m_sdk.requestFault("relay delay x").startsWith(u"error: "));
        QVERIFY(m_sdk.requestFault("explode").startsWith(u"error: "));

        QCOMPARE(m_sdk.requestFault("relay close"), u"ok"_s);
        QTRY_COMPARE(m_client.state(), QAbstractSocket::UnconnectedState);
        QVERIFY(!connectClient());
        QCOMPARE(m_sdk.requestFault("relay open"), u"ok"_s);
        QVERIFY(connectClient());
    }

    // Browsers let any web page open WebSockets to this machine.
    void webPagesAreRefused()
    {
        QWebSocket page(u"https://nimbra.example"_s);
        QSignalSpy connected(&page, &QWebSocket::connected);
        QSignalSpy disconnected(&page, &QWebSocket::disconnected);
        page.open(QUrl(u"ws://127.0.0.1:5454"_s));
        QVERIFY(disconnected.wait());
        QVERIFY(connected.isEmpty());
    }

    // The services must accept every call as the plugin writes it.
    void everyCallOfThePluginSucceeds()
    {
        const TestSupport::IdeSettings settings;
        RemoteDBusInvokerService link;
        SensorsEmulationManager sensors;
        GPSEmulationManager location;
        sensors.setRdbusinvoker(&link);
        location.setRdbusinvoker(&link);
        QSignalSpy replies(&sensors, &EmulationManager::replyFromEmulatorReceived);
        QSignalSpy initialized(&sensors, &SensorsEmulationManager::sensorsInitialized);
        link.connectToEmulator();
        QVERIFY(initialized.wait());
        for (const int value : {-1, 0}) {
            sensors.setAccelerometerX(value);
            sensors.setAccelerometerY(value);
            sensors.setAccelerometerZ(value);
            sensors.setGyroscopeX(value / 3.0);
            sensors.setGyroscopeY(value / 3.0);
            sensors.setGyroscopeZ(value / 3.0);
            sensors.setMagnetometerX(value * 1e-7);
            sensors.setMagnetometerY(value * 1e-7);
            sensors.setMagnetometerZ(value * 1e-7);
            location.setLatitude(value);
            location.setLongitude(value);
            location.setAltitude(value);
        }
        sensors.disableSensor(u"als"_s);
        sensors.enableSensor(u"als"_s);
        // the longest texts of as many points as the GPS page accepts
        constexpr int maximumPoints = 1'400'000;
        const QVariantMap point{{u"latitude"_s, -999.9999999},
                                {u"longitude"_s, -999.9999999},
                                {u"altitude"_s, 999.99},
                                {u"interval"_s, -1.23457e+12}};
        location.loadTrack(QVariantList(maximumPoints, point));
        location.goToPositionOnTrack(maximumPoints - 1);
        location.startTrack();
        location.pauseTrack();
        QSignalSpy lost(&link, &RemoteDBusInvokerService::webSocketDisconnected);
        constexpr int calls = 8 + 7 + 5 + 2 * 12 + 6; // the two set-ups first
        QTRY_VERIFY_WITH_TIMEOUT(replies.size() == calls || !lost.isEmpty(), 60s);
        QVERIFY(lost.isEmpty());
        for (const QVariantList &reply : replies)
            QCOMPARE(reply.constFirst(), u"OK"_s);
        QVERIFY(!sensors.sensorsEnabledStates().values().contains(false));
    }
};

QTEST_GUILESS_MAIN(EmulatorTest)

#include "tst_emulator.moc"
