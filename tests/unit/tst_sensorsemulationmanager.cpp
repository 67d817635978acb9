#include <sensors/sensorsemulationmanager.h>
#include <support/connectedmanager.h>

#include <QLocale>
#include <QMetaProperty>
#include <QTest>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

static const QStringList sensors
    = u"accelerometer als compass gyroscope magnetometer orientation proximity tap"_s.split(u' ');

static QString callForEach(const QString &method)
{
    const QString start = method + u" string:"_s;
    return start + sensors.join(QString(u';' + start));
}

/// Calls \a check(model, its name, property) for each property of all models that can change.
template<typename Check>
static void forEachProperty(const SensorsEmulationManager &manager, const Check &check)
{
    const QStringList models = sensors + QStringList{u"magneticField"_s};
    for (const QString &name : models) {
        auto *model = manager.property(name.toLatin1()).value<QObject *>();
        for (int i = QObject::staticMetaObject.propertyCount();
             i < model->metaObject()->propertyCount(); ++i) {
            if (const QMetaProperty property = model->metaObject()->property(i);
                !property.isConstant())
                check(model, name, property);
        }
    }
}

/// The values of each model as the pages see them, for example "accelerometer 0 0 1000".
static QStringList valuesOf(const SensorsEmulationManager &manager)
{
    QMap<QString, QString> values;
    forEachProperty(manager, [&](QObject *model, const QString &name, const QMetaProperty &it) {
        values[name]
            += u' '
               + QString::number(it.read(model).toDouble(), 'g', QLocale::FloatingPointShortest);
    });
    QStringList result;
    for (const auto &[name, text] : values.asKeyValueRange())
        result << name + text;
    return result;
}

/// Sets values that are not the defaults. The azimuth depends on each of the first six.
static void setUnusualValues(SensorsEmulationManager &manager)
{
    manager.setAccelerometerValues(300, -200, 900);
    manager.setMagnetometerValues(2e-5, 3e-5, -4e-5);
    manager.setMagneticFieldValues(-0.1, 1e-300, -1.0 / 3);
    manager.setMagnetometerCalibrationLevel(2);
    manager.setGyroscopeValues(4, 5, 6);
    manager.setAlsLuxValue(12345);
    manager.setProximitySensorReflectanceValue(9);
    manager.setTapSensorValue(TapModel::Y_Neg);
}

struct Fixture : TestSupport::ConnectedManager<SensorsEmulationManager>
{
    Fixture()
        : ConnectedManager(u"org.vexa.SensorfwEmulationManagement"_s)
    {}
};

class SensorsEmulationManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A call of a page, the requests that it sends and the models' values that it changes.
    void call_data()
    {
        QTest::addColumn<QString>("requests");
        QTest::addColumn<QString>("changes");
        const auto add = [](const char *call, const char *requests, const char *changes) {
            QTest::newRow(call) << QString::fromLatin1(requests) << QString::fromLatin1(changes);
        };
        add("setSensorEnabled('als', true)", "", "");
        add("setAccelerometerValues(10, -3, 981)",
            "setAccelerometerValues int32:10 int32:-3 int32:981",
            "accelerometer 10 -3 981;compass 327 2");
        add("setAccelerometerX(-1000)", "setAccelerometerX int32:-1000",
            "accelerometer -1000 -200 900;compass 306 2;orientation 3");
        add("setAccelerometerY(1000)", "setAccelerometerY int32:1000",
            "accelerometer 300 1000 900;compass 209 2;orientation 1");
        add("setAccelerometerZ(-1000)", "setAccelerometerZ int32:-1000",
            "accelerometer 300 -200 -1000;compass 53 2;orientation 6");
        add("setAlsLuxValue(20000)", "setAlsValue int32:20000", "als 20000");
        add("setAlsLightLevel(2500)", "setAlsValue int32:2500", "als 2500");
        // requests have six digits, the model keeps all digits
        add("setGyroscopeValues(1.23456789, -2.5, 1e-7)",
            "setGyroscopeValues double:1.23457 double:-2.5 double:1e-07",
            "gyroscope 1.23456789 -2.5 1e-07");
        add("setGyroscopeX(9)", "setGyroscopeX double:9", "gyroscope 9 5 6");
        add("setGyroscopeY(9)", "setGyroscopeY double:9", "gyroscope 4 9 6");
        add("setGyroscopeZ(9)", "setGyroscopeZ double:9", "gyroscope 4 5 9");
        add("setMagnetometerValues(-2e-5, 2e-5, -1)",
            "setMagnetometerValues double:-2e-05 double:2e-05 double:-1",
            "compass 58 2;magnetometer -2e-05 2e-05 -1 2");
        add("setMagnetometerX(-1)", "setMagnetometerX double:-1",
            "compass 94 2;magnetometer -1 3e-05 -4e-05 2");
        add("setMagnetometerY(1)", "setMagnetometerY double:1",
            "compass 0 2;magnetometer 2e-05 1 -4e-05 2");
        add("setMagnetometerZ(1)", "setMagnetometerZ double:1",
            "compass 238 2;magnetometer 2e-05 3e-05 1 2");
        for (const char *call :
             {"setMagnetometerCalibrationLevel(3)", "setCompassCalibrationLevel(3)"})
            add(call, "setMagnetometerCalibrationLevel int32:3",
                "compass 351 3;magnetometer 2e-05 3e-05 -4e-05 3");
        // the magnetic field is not sent
        add("setMagneticFieldValues(1, 2, 3)", "", "magneticField 1 2 3");
        add("setMagneticFieldZ(3)", "", "magneticField -0.1 1e-300 3");
        add("setProximitySensorNearValue(true)", "setProximitySensorValue int32:0", "proximity 0");
        add("setProximitySensorNearValue(false)", "setProximitySensorValue int32:10",
            "proximity 10");
        add("setTapSensorValue(6)", "setTapSensorValue int32:6", "tap 6");
        add("setTapSensorValue(-1)", "setTapSensorValue int32:-1", "tap -1");
        add("setOrientation(0)", "", "");
        add("setOrientation(7)", "", "");
        add("setDefaultValues()",
            "setAccelerometerValues int32:0 int32:0 int32:1000;setAlsValue int32:100;"
            "setGyroscopeValues double:0 double:0 double:1.14592;"
            "setMagnetometerValues double:4.3e-05 double:0 double:0;"
            "setMagnetometerCalibrationLevel int32:0;setProximitySensorValue int32:5;"
            "setTapSensorValue int32:-1",
            "accelerometer 0 0 1000;als 100;compass 270 0;gyroscope 0 0 1.1459155902616465;"
            "magnetometer 4.3e-05 0 0 0;proximity 5;tap -1");
    }

    void call()
    {
        Fixture fixture;
        SensorsEmulationManager &manager = fixture.manager;
        setUnusualValues(manager);
        QVERIFY(!fixture.takeRequests().isEmpty());
        const QStringList before = valuesOf(manager);
        const QString call = QString::fromLatin1(QTest::currentDataTag());
        QCOMPARE(fixture.evaluate(u"manager."_s + call), u"undefined"_s);
        QTEST(fixture.takeRequests(), "requests");
        QStringList changes = valuesOf(manager);
        changes.removeIf([&](const QString &value) { return before.contains(value); });
        QTEST(changes.join(u';'), "changes");
    }

    // A setter must notify also when the value stays the same.
    void settersNotify()
    {
        const Fixture fixture;
        forEachProperty(fixture.manager, [](QObject *model, auto &, const QMetaProperty &it) {
            QSignalSpy changed(model, it.notifySignal());
            QVERIFY(it.write(model, it.read(model)));
            QCOMPARE(changed.size(), 1);
        });
    }

    // Setting an orientation or an azimuth must give the same one back.
    void derivedValuesComeBack()
    {
        Fixture fixture;
        const QStringList accelerations{u"0 100 0"_s, u"0 -100 0"_s, u"-100 0 0"_s,
                                        u"100 0 0"_s, u"0 0 300"_s,  u"0 0 -300"_s};
        for (int i = 0; i < accelerations.size(); ++i) {
            fixture.manager.setOrientation(i + 1);
            QString request = u"setAccelerometerValues "_s + accelerations.at(i);
            QCOMPARE(fixture.takeRequests(), request.replace(u" "_s, u" int32:"_s));
            QCOMPARE(int(fixture.manager.orientation()->orientation()), i + 1);
        }
        fixture.manager.setCompassAzimuth(150);
        QCOMPARE(fixture.takeRequests(),
                 u"setAccelerometerValues int32:0 int32:0 int32:1000;"
                 "setMagnetometerValues double:-2.17945e-05 double:-3.77492e-05 double:0"_s);
        for (int azimuth = 0; azimuth < 360; ++azimuth) {
            fixture.manager.setCompassAzimuth(azimuth);
            QCOMPARE(fixture.manager.compass()->azimuth(), azimuth);
        }
    }

    void connection()
    {
        Fixture fixture;
        SettingsManager().saveAccelerometerValues(1, 2, 3);
        SettingsManager().saveMagneticFieldValues(4.5, 5.5, -6.5);
        SettingsManager().setValue(SettingsManager::tapKey, 42); // not a direction
        const QString restored
            = u";setAccelerometerValues int32:1 int32:2 int32:3;"
              "setMagnetometerValues double:4.3e-05 double:0 double:0;"
              "setMagnetometerCalibrationLevel int32:0;"
              "setGyroscopeValues double:0 double:0 double:1.14592;setAlsValue int32:100;"
              "setProximitySensorValue int32:5"_s;
        QSignalSpy initialized(&fixture.manager, &SensorsEmulationManager::sensorsInitialized);

        // the first connection asks for the sensors' states
        QVERIFY(fixture.reconnect());
        QCOMPARE(fixture.takeRequests(), callForEach(u"enabled"_s) + restored);
        QCOMPARE(fixture.manager.magneticField()->z(), -6.5);

        // later ones send the device model's sensors, the user's switches and the last values
        fixture.manager.setSensorAvailable(u"compass"_s, false);
        for (const QString &name : {u"compass"_s, u"tap"_s, u"als"_s})
            fixture.manager.setSensorEnabled(name, false);
        fixture.manager.setSensorEnabled(u"als"_s, true);
        fixture.manager.setTapSensorValue(TapModel::X_Pos);
        QCOMPARE(fixture.takeRequests(),
                 u"disableSensor string:compass;setTapSensorValue int32:3"_s);
        Q_EMIT fixture.manager.emulatorConnected();
        const QString pushed
            = callForEach(u"enableSensor"_s)
                  .replace(u"enableSensor string:compass"_s, u"disableSensor string:compass"_s);
        QCOMPARE(fixture.takeRequests(), pushed + u";disableSensor string:tap"_s + restored
                                             + u";setTapSensorValue int32:3"_s);
        QCOMPARE(fixture.manager.sensorsEnabledStates().keys(false),
                 (QStringList{u"compass"_s, u"tap"_s}));
        QCOMPARE(initialized.size(), 2);

        fixture.manager.setAlsLuxValue(7);
        fixture.relay.stop(); // the values are saved when the link goes
        QTRY_COMPARE(SettingsManager().readAlsLuxValue(), 7);
    }

    // Random replies are in tst_fuzz.
    void replyForASensorThatIsNotThere()
    {
        Fixture fixture;
        fixture.manager.setSensorAvailable(u"tap"_s, false);
        fixture.manager.setSensorEnabled(u"als"_s, true);
        QVERIFY(!fixture.takeRequests().isEmpty());
        QSignalSpy replies(&fixture.manager, &EmulationManager::replyFromEmulatorReceived);
        for (const QString &line : {u"enabled:tap:1::"_s, u"enabled::1::"_s})
            fixture.relay.reply(line);
        QTRY_COMPARE(replies.size(), 2);
        QCOMPARE(fixture.manager.sensorsEnabledStates().keys(true), QStringList{u"als"_s});
        QCOMPARE(fixture.takeRequests(), u"disableSensor string:tap"_s);
    }

    void everythingAvailable()
    {
        Fixture fixture;
        fixture.manager.setSensorAvailable(u"sonar"_s, true);
        fixture.manager.setSensorAvailable(u"als"_s, false);
        QCOMPARE(fixture.manager.sensorsAvailability().keys(false), QStringList{u"als"_s});
        QCOMPARE(fixture.takeRequests(), u"enableSensor string:sonar;disableSensor string:als"_s);
        fixture.manager.makeAllSensorsAvailable();
        QCOMPARE(fixture.manager.sensorsAvailability().keys(true), sensors); // without the sonar
        QCOMPARE(fixture.manager.sensorsEnabledStates().value(u"als"_s), true);
        QCOMPARE(fixture.takeRequests(), callForEach(u"enableSensor"_s));
    }

    void valuesOutliveTheManager()
    {
        Fixture fixture;
        auto idle = std::make_unique<SensorsEmulationManager>();
        auto earlier = std::make_unique<SensorsEmulationManager>();
        earlier->setRdbusinvoker(&fixture.link);
        setUnusualValues(*earlier);
        const QStringList values = valuesOf(*earlier);
        earlier.reset();
        idle.reset(); // has not changed a value, so it must not save its own
        QCOMPARE(valuesOf(SensorsEmulationManager()), values);
        QVERIFY(fixture.reconnect());
        QCOMPARE(valuesOf(fixture.manager), values);
    }
};

QTEST_GUILESS_MAIN(SensorsEmulationManagerTest)

#include "tst_sensorsemulationmanager.moc"
