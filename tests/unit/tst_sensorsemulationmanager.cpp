#include <sensors/sensorsemulationmanager.h>
#include <support/connectedmanager.h>

#include <QLocale>
#include <QMetaProperty>
#include <QTest>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

// Rows: a call of a page > the requests > the models' values that differ from the defaults.
static constexpr const char *calls[] = {
    "setSensorEnabled('als', true) >  > ",
    "setAccelerometerValues(10, -3, 981) > setAccelerometerValues int32:10 int32:-3 int32:981"
    " > accelerometer.x=10 accelerometer.y=-3 accelerometer.z=981",
    "setAccelerometerX(-1000) > setAccelerometerX int32:-1000"
    " > accelerometer.x=-1000 orientation.orientation=3",
    "setAccelerometerY(1000) > setAccelerometerY int32:1000"
    " > accelerometer.y=1000 orientation.orientation=1",
    "setAccelerometerZ(-1000) > setAccelerometerZ int32:-1000"
    " > accelerometer.z=-1000 compass.azimuth=90 orientation.orientation=6",
    "setAlsLuxValue(20000) > setAlsValue int32:20000 > als.lux=20000",
    "setAlsLightLevel(2500) > setAlsValue int32:2500 > als.lux=2500",
    // requests have six digits, the model keeps all
    "setGyroscopeValues(1.23456789, -2.5, 1e-7)"
    " > setGyroscopeValues double:1.23457 double:-2.5 double:1e-07"
    " > gyroscope.x=1.23456789 gyroscope.y=-2.5 gyroscope.z=1e-07",
    "setGyroscopeX(9) > setGyroscopeX double:9 > gyroscope.x=9",
    "setGyroscopeY(9) > setGyroscopeY double:9 > gyroscope.y=9",
    "setGyroscopeZ(9) > setGyroscopeZ double:9 > gyroscope.z=9",
    "setMagnetometerValues(-2e-5, 2e-5, -1)"
    " > setMagnetometerValues double:-2e-05 double:2e-05 double:-1"
    " > compass.azimuth=45 magnetometer.x=-2e-05 magnetometer.y=2e-05 magnetometer.z=-1",
    "setMagnetometerX(-1) > setMagnetometerX double:-1 > compass.azimuth=90 magnetometer.x=-1",
    "setMagnetometerY(1) > setMagnetometerY double:1 > compass.azimuth=0 magnetometer.y=1",
    "setMagnetometerZ(1) > setMagnetometerZ double:1 > magnetometer.z=1",
    "setMagnetometerCalibrationLevel(3) > setMagnetometerCalibrationLevel int32:3"
    " > compass.calibrationLevel=3 magnetometer.calibrationLevel=3",
    "setCompassCalibrationLevel(3) > setMagnetometerCalibrationLevel int32:3"
    " > compass.calibrationLevel=3 magnetometer.calibrationLevel=3",
    // the magnetic field is not sent
    "setMagneticFieldValues(1, 2, 3) >  > magneticField.x=1 magneticField.y=2 magneticField.z=3",
    "setMagneticFieldZ(3) >  > magneticField.z=3",
    "setProximitySensorNearValue(true) > setProximitySensorValue int32:0 > proximity.reflectance=0",
    "setProximitySensorNearValue(false) > setProximitySensorValue int32:10"
    " > proximity.reflectance=10",
    "setTapSensorValue(6) > setTapSensorValue int32:6 > tap.tapDirection=6",
    "setTapSensorValue(-1) > setTapSensorValue int32:-1 > ",
    "setOrientation(0) >  > ",
    "setOrientation(7) >  > ",
    "setDefaultValues() > setAccelerometerValues int32:0 int32:0 int32:1000;setAlsValue int32:100;"
    "setGyroscopeValues double:0 double:0 double:1.14592;"
    "setMagnetometerValues double:4.3e-05 double:0 double:0;setMagnetometerCalibrationLevel "
    "int32:0;"
    "setProximitySensorValue int32:5;setTapSensorValue int32:-1 > ",
};

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

/// All models' values as the pages see them, each as "model.property=value".
static QStringList valuesOf(const SensorsEmulationManager &manager)
{
    QStringList values;
    forEachProperty(manager, [&](QObject *model, const QString &name, const QMetaProperty &it) {
        values << u"%1.%2=%3"_s.arg(name, QString::fromLatin1(it.name()))
                      .arg(it.read(model).toDouble(), 0, 'g', QLocale::FloatingPointShortest);
    });
    return values;
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
    void call_data() { TestSupport::addCallRows(calls); }

    void call()
    {
        QFETCH(const QStringList, row);
        Fixture fixture;
        fixture.manager.setDefaultValues();
        QVERIFY(!fixture.takeRequests().isEmpty());
        const QStringList before = valuesOf(fixture.manager);
        QCOMPARE(fixture.evaluate(u"manager."_s + row.at(0)), u"undefined"_s);
        QCOMPARE(fixture.takeRequests(), row.at(1));
        QStringList changes = valuesOf(fixture.manager);
        changes.removeIf([&](const QString &value) { return before.contains(value); });
        QCOMPARE(changes.join(u' '), row.at(2));
    }

    // Also a value that stays the same is notified.
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
        SettingsManager().setValue(SettingsManager::tapKey, 42); // no direction, so it is not sent
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

    // tst_fuzz tries random replies.
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
        QCOMPARE(fixture.manager.sensorsAvailability().keys(true), sensors); // not the sonar
        QCOMPARE(fixture.manager.sensorsEnabledStates().value(u"als"_s), true);
        QCOMPARE(fixture.takeRequests(), callForEach(u"enableSensor"_s));
    }

    void valuesOutliveTheManager()
    {
        Fixture fixture;
        auto idle = std::make_unique<SensorsEmulationManager>();
        auto earlier = std::make_unique<SensorsEmulationManager>();
        earlier->setRdbusinvoker(&fixture.link);
        earlier->setAccelerometerValues(-700, 20, 600);
        earlier->setMagnetometerValues(1.0 / 3, -1e-300, 5e-5);
        earlier->setMagneticFieldValues(-0.1, 48.76, -48.76);
        earlier->setMagnetometerCalibrationLevel(2);
        earlier->setGyroscopeValues(-1e6, 0.1, 2.0 / 3);
        earlier->setAlsLuxValue(12345);
        earlier->setProximitySensorReflectanceValue(9);
        earlier->setTapSensorValue(TapModel::Y_Neg);
        const QStringList values = valuesOf(*earlier);
        earlier.reset();
        idle.reset(); // unchanged, so it saves nothing
        QVERIFY(fixture.reconnect());
        QCOMPARE(valuesOf(fixture.manager), values);
        fixture.manager.setDefaultValues(); // all but the magnetic field
        QCOMPARE(valuesOf(fixture.manager),
                 u"accelerometer.x=0 accelerometer.y=0 accelerometer.z=1000 als.lux=100 "
                 "compass.azimuth=270 compass.calibrationLevel=0 gyroscope.x=0 gyroscope.y=0 "
                 "gyroscope.z=1.1459155902616465 magnetometer.x=4.3e-05 magnetometer.y=0 "
                 "magnetometer.z=0 magnetometer.calibrationLevel=0 orientation.orientation=5 "
                 "proximity.reflectance=5 tap.tapDirection=-1 "
                 "magneticField.x=-0.1 magneticField.y=48.76 magneticField.z=-48.76"_s.split(u' '));
    }
};

QTEST_GUILESS_MAIN(SensorsEmulationManagerTest)

#include "tst_sensorsemulationmanager.moc"
