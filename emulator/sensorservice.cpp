#include "sensorservice.h"

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

SensorService::SensorService(QObject *parent)
    : QObject(parent)
    , m_sensors{{u"accelerometer"_s, true}, {u"als"_s, true},          {u"compass"_s, true},
                {u"gyroscope"_s, true},     {u"magnetometer"_s, true}, {u"orientation"_s, true},
                {u"proximity"_s, true},     {u"tap"_s, true}}
{}

bool SensorService::isKnown(const QString &sensor)
{
    if (m_sensors.contains(sensor))
        return true;
    sendErrorReply(serviceName + ".Error.UnknownSensor"_L1,
                   u"There is no sensor \"%1\""_s.arg(sensor));
    return false;
}

void SensorService::setEnabled(const QString &sensor, bool enabled)
{
    if (isKnown(sensor))
        store(m_sensors[sensor], enabled);
}

void SensorService::enableSensor(const QString &sensor)
{
    setEnabled(sensor, true);
}

void SensorService::disableSensor(const QString &sensor)
{
    setEnabled(sensor, false);
}

bool SensorService::enabled(const QString &sensor)
{
    return isKnown(sensor) && m_sensors.value(sensor);
}

void SensorService::setAccelerometerValues(int x, int y, int z)
{
    store(m_readings.accelerometer, {x, y, z});
}

void SensorService::setAccelerometerX(int x)
{
    store(m_readings.accelerometer.x, x);
}

void SensorService::setAccelerometerY(int y)
{
    store(m_readings.accelerometer.y, y);
}

void SensorService::setAccelerometerZ(int z)
{
    store(m_readings.accelerometer.z, z);
}

void SensorService::setAlsValue(int lux)
{
    store(m_readings.als, lux);
}

void SensorService::setGyroscopeValues(double x, double y, double z)
{
    store(m_readings.gyroscope, {x, y, z});
}

void SensorService::setGyroscopeX(double x)
{
    store(m_readings.gyroscope.x, x);
}

void SensorService::setGyroscopeY(double y)
{
    store(m_readings.gyroscope.y, y);
}

void SensorService::setGyroscopeZ(double z)
{
    store(m_readings.gyroscope.z, z);
}

void SensorService::setMagnetometerValues(double x, double y, double z)
{
    store(m_readings.magnetometer, {x, y, z});
}

void SensorService::setMagnetometerX(double x)
{
    store(m_readings.magnetometer.x, x);
}

void SensorService::setMagnetometerY(double y)
{
    store(m_readings.magnetometer.y, y);
}

void SensorService::setMagnetometerZ(double z)
{
    store(m_readings.magnetometer.z, z);
}

void SensorService::setMagnetometerCalibrationLevel(int level)
{
    store(m_readings.magnetometerCalibrationLevel, level);
}

void SensorService::setProximitySensorValue(int reflectance)
{
    store(m_readings.proximity, reflectance);
}

void SensorService::setTapSensorValue(int direction)
{
    store(m_readings.tap, direction);
}

} // namespace NimbraEmulator
