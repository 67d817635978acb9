#include "sensorsemulationmanager.h"

#include <link/argumentencoding.h>
#include <link/remotedbusinvokerservice.h>

#include <QStringTokenizer>
#include <QtMath>

#include <cmath>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

// The horizontal flux density, in tesla, of the reading that setCompassAzimuth() sets.
constexpr double azimuthFluxDensity = 4.358898943540674e-05;
// The accelerations that setOrientation() sets, in thousandths of g.
constexpr int tiltedAcceleration = 100;
constexpr int facingAcceleration = 300;

/// The first of the arguments that a reply joins with "|". Splits no further: replies can be long.
static QString firstArgument(const QString &arguments)
{
    for (const QStringView argument : qTokenize(arguments, u'|', Qt::SkipEmptyParts))
        return argument.toString();
    return {};
}

SensorsEmulationManager::SensorsEmulationManager(QObject *parent)
    : EmulationManager(parent)
    , m_accelerometer(new AccelerometerModel(this))
    , m_magnetometer(new MagnetometerModel(this))
    , m_magneticField(new MagneticFieldModel(this))
    , m_compass(new CompassModel(this))
    , m_orientation(new OrientationModel(this))
    , m_gyroscope(new GyroscopeModel(this))
    , m_als(new AlsModel(this))
    , m_proximity(new ProximityModel(this))
    , m_tap(new TapModel(this))
{
    const QList<SensorModel *> sensors
        = {m_accelerometer, m_compass,   m_orientation, m_magnetometer,
           m_als,           m_gyroscope, m_proximity,   m_tap};
    for (SensorModel *sensor : sensors) {
        m_sensorsEnabledStates.insert(sensor->name(), false);
        m_sensors.insert(sensor->name(), sensor);
    }
    readSensorsValues();
    initSensorsAvailability();
    connect(this, &EmulationManager::emulatorConnected, this,
            &SensorsEmulationManager::setupSensors);
    connect(this, &EmulationManager::rdbusinvokerChanged, this, [this] {
        // Save the values now, so that they survive a later crash of the IDE.
        connect(rdbusinvoker(), &RemoteDBusInvokerService::webSocketDisconnected, this,
                &SensorsEmulationManager::saveCurrentSensorsValues, Qt::UniqueConnection);
    });
}

SensorsEmulationManager::~SensorsEmulationManager()
{
    saveCurrentSensorsValues();
}

QString SensorsEmulationManager::bus() const
{
    return u"system"_s;
}

QString SensorsEmulationManager::dbusService() const
{
    return u"org.vexa.SensorfwEmulationManagement"_s;
}

QString SensorsEmulationManager::dbusObject() const
{
    return u"/org/vexa/SensorfwEmulationManagement"_s;
}

QString SensorsEmulationManager::dbusInterface() const
{
    return dbusService();
}

void SensorsEmulationManager::processDBusMethodsReturnValues(const QStringList &values)
{
    if (values.at(0) != u"enabled")
        return;
    const QString name = firstArgument(values.at(1));
    if (name.isEmpty())
        return;
    const bool available = m_sensorsAvailability.value(name).toBool();
    if (!available)
        disableSensor(name);
    noteSensorState(name, available && QVariant(values.at(2)).toBool());
}

AccelerometerModel *SensorsEmulationManager::accelerometer() const
{
    return m_accelerometer;
}

MagnetometerModel *SensorsEmulationManager::magnetometer() const
{
    return m_magnetometer;
}

MagneticFieldModel *SensorsEmulationManager::magneticField() const
{
    return m_magneticField;
}

CompassModel *SensorsEmulationManager::compass() const
{
    return m_compass;
}

OrientationModel *SensorsEmulationManager::orientation() const
{
    return m_orientation;
}

GyroscopeModel *SensorsEmulationManager::gyroscope() const
{
    return m_gyroscope;
}

AlsModel *SensorsEmulationManager::als() const
{
    return m_als;
}

ProximityModel *SensorsEmulationManager::proximity() const
{
    return m_proximity;
}

TapModel *SensorsEmulationManager::tap() const
{
    return m_tap;
}

QVariantMap SensorsEmulationManager::sensorsEnabledStates() const
{
    return m_sensorsEnabledStates;
}

QVariantMap SensorsEmulationManager::sensorsAvailability() const
{
    return m_sensorsAvailability;
}

void SensorsEmulationManager::initSensorsAvailability()
{
    m_sensorsAvailability.clear();
    for (auto sensor = m_sensors.cbegin(); sensor != m_sensors.cend(); ++sensor)
        m_sensorsAvailability.insert(sensor.key(), true);
    Q_EMIT sensorsAvailabilityChanged();
}

void SensorsEmulationManager::setSensorAvailable(const QString &name, bool available)
{
    m_sensorsAvailability.insert(name, available);
    noteSensorState(name, available);
    if (available)
        enableSensor(name);
    else
        disableSensor(name);
    Q_EMIT sensorsAvailabilityChanged();
}

void SensorsEmulationManager::makeAllSensorsAvailable()
{
    initSensorsAvailability();
    const QStringList names = m_sensorsAvailability.keys();
    for (const QString &name : names) {
        enableSensor(name);
        noteSensorState(name, true);
    }
}

void SensorsEmulationManager::enableSensor(const QString &sensorName)
{
    callDBusMethod(u"enableSensor"_s, stringArgument(sensorName));
}

void SensorsEmulationManager::disableSensor(const QString &sensorName)
{
    callDBusMethod(u"disableSensor"_s, stringArgument(sensorName));
}

void SensorsEmulationManager::checkSensorState(const QString &sensorName)
{
    callDBusMethod(u"enabled"_s, stringArgument(sensorName));
}

void SensorsEmulationManager::setSensorEnabled(const QString &name, bool enabled)
{
    if (!enabled)
        m_switchedOffByUser.insert(name);
    noteSensorState(name, enabled);
}

void SensorsEmulationManager::noteSensorState(const QString &name, bool enabled)
{
    m_sensorsEnabledStates.insert(name, enabled);
    if (enabled)
        m_switchedOffByUser.remove(name);
    Q_EMIT sensorsEnabledStatesChanged();
}

void SensorsEmulationManager::setAccelerometerValues(int x, int y, int z)
{
    callDBusMethod(u"setAccelerometerValues"_s,
                   joinArguments({int32Argument(x), int32Argument(y), int32Argument(z)}));
    m_accelerometer->setValues(x, y, z);
    updateAzimuth();
    updateOrientation();
}

void SensorsEmulationManager::setAccelerometerX(int x)
{
    callDBusMethod(u"setAccelerometerX"_s, int32Argument(x));
    m_accelerometer->setX(x);
    updateAzimuth();
    updateOrientation();
}

void SensorsEmulationManager::setAccelerometerY(int y)
{
    callDBusMethod(u"setAccelerometerY"_s, int32Argument(y));
    m_accelerometer->setY(y);
    updateAzimuth();
    updateOrientation();
}

void SensorsEmulationManager::setAccelerometerZ(int z)
{
    callDBusMethod(u"setAccelerometerZ"_s, int32Argument(z));
    m_accelerometer->setZ(z);
    updateAzimuth();
    updateOrientation();
}

void SensorsEmulationManager::setAlsLuxValue(int lux)
{
    callDBusMethod(u"setAlsValue"_s, int32Argument(lux));
    m_als->setLux(lux);
}

void SensorsEmulationManager::setAlsLightLevel(AlsModel::LightLevel level)
{
    setAlsLuxValue(level);
}

void SensorsEmulationManager::setGyroscopeValues(double x, double y, double z)
{
    callDBusMethod(u"setGyroscopeValues"_s,
                   joinArguments({doubleArgument(x), doubleArgument(y), doubleArgument(z)}));
    m_gyroscope->setValues(x, y, z);
}

void SensorsEmulationManager::setGyroscopeX(double x)
{
    callDBusMethod(u"setGyroscopeX"_s, doubleArgument(x));
    m_gyroscope->setX(x);
}

void SensorsEmulationManager::setGyroscopeY(double y)
{
    callDBusMethod(u"setGyroscopeY"_s, doubleArgument(y));
    m_gyroscope->setY(y);
}

void SensorsEmulationManager::setGyroscopeZ(double z)
{
    callDBusMethod(u"setGyroscopeZ"_s, doubleArgument(z));
    m_gyroscope->setZ(z);
}

void SensorsEmulationManager::setMagnetometerValues(double x, double y, double z)
{
    callDBusMethod(u"setMagnetometerValues"_s,
                   joinArguments({doubleArgument(x), doubleArgument(y), doubleArgument(z)}));
    m_magnetometer->setValues(x, y, z);
    updateAzimuth();
}

void SensorsEmulationManager::setMagnetometerX(double x)
{
    callDBusMethod(u"setMagnetometerX"_s, doubleArgument(x));
    m_magnetometer->setX(x);
    updateAzimuth();
}

void SensorsEmulationManager::setMagnetometerY(double y)
{
    callDBusMethod(u"setMagnetometerY"_s, doubleArgument(y));
    m_magnetometer->setY(y);
    updateAzimuth();
}

void SensorsEmulationManager::setMagnetometerZ(double z)
{
    callDBusMethod(u"setMagnetometerZ"_s, doubleArgument(z));
    m_magnetometer->setZ(z);
    updateAzimuth();
}

void SensorsEmulationManager::setMagnetometerCalibrationLevel(int calibrationLevel)
{
    callDBusMethod(u"setMagnetometerCalibrationLevel"_s, int32Argument(calibrationLevel));
    m_magnetometer->setCalibrationLevel(calibrationLevel);
    m_compass->setCalibrationLevel(calibrationLevel);
}

void SensorsEmulationManager::setMagneticFieldValues(double x, double y, double z)
{
    m_magneticField->setValues(x, y, z);
}

void SensorsEmulationManager::setMagneticFieldX(double x)
{
    m_magneticField->setX(x);
}

void SensorsEmulationManager::setMagneticFieldY(double y)
{
    m_magneticField->setY(y);
}

void SensorsEmulationManager::setMagneticFieldZ(double z)
{
    m_magneticField->setZ(z);
}

void SensorsEmulationManager::setCompassAzimuth(int azimuth)
{
    m_compass->setAzimuth(azimuth);
    setAccelerometerValues(0, 0, AccelerometerModel::defaultZValue);
    const double angle = qDegreesToRadians(double(-azimuth));
    setMagnetometerValues(std::sin(angle) * azimuthFluxDensity,
                          std::cos(angle) * azimuthFluxDensity, 0.0);
}

void SensorsEmulationManager::setCompassCalibrationLevel(int calibrationLevel)
{
    m_compass->setCalibrationLevel(calibrationLevel);
    setMagnetometerCalibrationLevel(calibrationLevel);
}

void SensorsEmulationManager::setOrientation(int orientation)
{
    switch (orientation) {
    case QOrientationReading::TopUp:
        return setAccelerometerValues(0, tiltedAcceleration, 0);
    case QOrientationReading::TopDown:
        return setAccelerometerValues(0, -tiltedAcceleration, 0);
    case QOrientationReading::LeftUp:
        return setAccelerometerValues(-tiltedAcceleration, 0, 0);
    case QOrientationReading::RightUp:
        return setAccelerometerValues(tiltedAcceleration, 0, 0);
    case QOrientationReading::FaceUp:
        return setAccelerometerValues(0, 0, facingAcceleration);
    case QOrientationReading::FaceDown:
        return setAccelerometerValues(0, 0, -facingAcceleration);
    default:
        return;
    }
}

void SensorsEmulationManager::setProximitySensorReflectanceValue(int reflectance)
{
    callDBusMethod(u"setProximitySensorValue"_s, int32Argument(reflectance));
    m_proximity->setReflectance(reflectance);
}

void SensorsEmulationManager::setProximitySensorNearValue(bool near)
{
    setProximitySensorReflectanceValue(near ? ProximityModel::nearReflectance
                                            : ProximityModel::farReflectance);
}

void SensorsEmulationManager::setTapSensorValue(TapModel::TapDirection tapDirection)
{
    callDBusMethod(u"setTapSensorValue"_s, int32Argument(tapDirection));
    m_tap->setTapDirection(tapDirection);
}

void SensorsEmulationManager::setDefaultValues()
{
    setAccelerometerValues(0, 0, AccelerometerModel::defaultZValue);
    setAlsLuxValue(AlsModel::defaultLux);
    setGyroscopeValues(0.0, 0.0, GyroscopeModel::defaultZValue);
    setMagnetometerValues(MagnetometerModel::defaultXValue, 0.0, 0.0);
    setMagnetometerCalibrationLevel(MagnetometerModel::defaultCalibLevel);
    setProximitySensorReflectanceValue(ProximityModel::defaultReflectance);
    setTapSensorValue(TapModel::Undefined);
}

void SensorsEmulationManager::setupSensors()
{
    if (isSuspended())
        return; // the emulator would not be asked
    if (m_sensorsSetUp) {
        const QSet<QString> switchedOff = m_switchedOffByUser;
        const QMap<QString, QVariant> availability = m_sensorsAvailability;
        for (auto sensor = availability.cbegin(); sensor != availability.cend(); ++sensor)
            setSensorAvailable(sensor.key(), sensor.value().toBool());
        for (const QString &name : switchedOff) {
            if (!availability.value(name).toBool())
                continue;
            disableSensor(name);
            setSensorEnabled(name, false);
        }
    } else {
        const QStringList names = m_sensorsEnabledStates.keys();
        for (const QString &name : names)
            checkSensorState(name);
        m_sensorsSetUp = true;
    }
    saveCurrentSensorsValues(); // so that values that were set without an emulator are restored
    restoreSensorsValues();
    Q_EMIT sensorsInitialized();
}

void SensorsEmulationManager::readSensorsValues()
{
    m_accelerometer->setValues(m_settings.readAccelerometerX(), m_settings.readAccelerometerY(),
                               m_settings.readAccelerometerZ());
    m_magnetometer->setValues(m_settings.readMagnetometerX(), m_settings.readMagnetometerY(),
                              m_settings.readMagnetometerZ());
    m_magneticField->setValues(m_settings.readMagneticFieldX(), m_settings.readMagneticFieldY(),
                               m_settings.readMagneticFieldZ());
    m_magnetometer->setCalibrationLevel(m_settings.readMagnetometerCalibLevel());
    m_compass->setCalibrationLevel(m_magnetometer->calibrationLevel());
    m_gyroscope->setValues(m_settings.readGyroscopeX(), m_settings.readGyroscopeY(),
                           m_settings.readGyroscopeZ());
    m_als->setLux(m_settings.readAlsLuxValue());
    m_proximity->setReflectance(m_settings.readProximitySensorReflectanceValue());
    const TapModel::TapDirection tapDirection = m_settings.readTapSensorValue();
    if (TapModel::isTapDirection(tapDirection))
        m_tap->setTapDirection(tapDirection);
    updateAzimuth();
    updateOrientation();
    m_savedSensorsValues = currentSensorsValues();
}

void SensorsEmulationManager::restoreSensorsValues()
{
    // Another IDE may have saved other values since this one started.
    readSensorsValues();
    setAccelerometerValues(m_accelerometer->x(), m_accelerometer->y(), m_accelerometer->z());
    setMagnetometerValues(m_magnetometer->x(), m_magnetometer->y(), m_magnetometer->z());
    setMagnetometerCalibrationLevel(m_magnetometer->calibrationLevel());
    setGyroscopeValues(m_gyroscope->x(), m_gyroscope->y(), m_gyroscope->z());
    setAlsLuxValue(m_als->lux());
    setProximitySensorReflectanceValue(m_proximity->reflectance());
    // readSensorsValues() ignores a saved number that is not a direction: do not send it either.
    if (TapModel::isTapDirection(m_settings.readTapSensorValue()))
        setTapSensorValue(m_tap->tapDirection());
}

void SensorsEmulationManager::saveCurrentSensorsValues()
{
    const QVariantList values = currentSensorsValues();
    if (values == m_savedSensorsValues)
        return;
    m_settings.saveAccelerometerValues(m_accelerometer->x(), m_accelerometer->y(),
                                       m_accelerometer->z());
    m_settings.saveAlsLuxValue(m_als->lux());
    m_settings.saveGyroscopeValues(m_gyroscope->x(), m_gyroscope->y(), m_gyroscope->z());
    m_settings.saveMagneticFieldValues(m_magneticField->x(), m_magneticField->y(),
                                       m_magneticField->z());
    m_settings.saveMagnetometerValues(m_magnetometer->x(), m_magnetometer->y(),
                                      m_magnetometer->z());
    m_settings.saveMagnetometerCalibLevel(m_magnetometer->calibrationLevel());
    m_settings.saveProximitySensorReflectanceValue(m_proximity->reflectance());
    m_settings.saveTapSensorValue(m_tap->tapDirection());
    m_savedSensorsValues = values;
}

QVariantList SensorsEmulationManager::currentSensorsValues() const
{
    return {m_accelerometer->x(),       m_accelerometer->y(),
            m_accelerometer->z(),       m_als->lux(),
            m_gyroscope->x(),           m_gyroscope->y(),
            m_gyroscope->z(),           m_magneticField->x(),
            m_magneticField->y(),       m_magneticField->z(),
            m_magnetometer->x(),        m_magnetometer->y(),
            m_magnetometer->z(),        m_magnetometer->calibrationLevel(),
            m_proximity->reflectance(), int(m_tap->tapDirection())};
}

void SensorsEmulationManager::updateAzimuth()
{
    m_compass->setAzimuth(CompassModel::calculateAzimuth(m_accelerometer->x(), m_accelerometer->y(),
                                                         m_accelerometer->z(), m_magnetometer->x(),
                                                         m_magnetometer->y(), m_magnetometer->z()));
}

void SensorsEmulationManager::updateOrientation()
{
    m_orientation->setOrientation(m_accelerometer->x(), m_accelerometer->y(), m_accelerometer->z());
}

} // namespace EmulationManagement::Internal
