#include "settingsmanager.h"

#include "accelerometermodel.h"
#include "alsmodel.h"
#include "gyroscopemodel.h"
#include "magneticfieldmodel.h"
#include "magnetometermodel.h"
#include "proximitymodel.h"
#include "storedvalues.h"

#include <QtNumeric>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

const QString SettingsManager::groupName = u"emulationmanagement"_s;

const QString SettingsManager::accelerometerXKey = u"accelerometer_x"_s;
const QString SettingsManager::accelerometerYKey = u"accelerometer_y"_s;
const QString SettingsManager::accelerometerZKey = u"accelerometer_z"_s;
const QString SettingsManager::alsKey = u"als"_s;
const QString SettingsManager::gyroscopeXKey = u"gyroscope_x"_s;
const QString SettingsManager::gyroscopeYKey = u"gyroscope_y"_s;
const QString SettingsManager::gyroscopeZKey = u"gyroscope_z"_s;
const QString SettingsManager::magneticFieldXKey = u"magnetic_field_x"_s;
const QString SettingsManager::magneticFieldYKey = u"magnetic_field_y"_s;
const QString SettingsManager::magneticFieldZKey = u"magnetic_field_z"_s;
const QString SettingsManager::magnetometerXKey = u"magnetometer_x"_s;
const QString SettingsManager::magnetometerYKey = u"magnetometer_y"_s;
const QString SettingsManager::magnetometerZKey = u"magnetometer_z"_s;
const QString SettingsManager::magnetometerCalibLevelKey = u"magnetometer_calib_level"_s;
const QString SettingsManager::proximityReflectanceKey = u"proximity_reflectance"_s;
const QString SettingsManager::tapKey = u"tap"_s;
const QString SettingsManager::gpsLatitudeKey = u"gps_latitude"_s;
const QString SettingsManager::gpsLongitudeKey = u"gps_longitude"_s;
const QString SettingsManager::gpsAltitudeKey = u"gps_altitude"_s;
const QString SettingsManager::modelRotationXKey = u"model_rotation_x"_s;
const QString SettingsManager::modelRotationYKey = u"model_rotation_y"_s;
const QString SettingsManager::modelRotationZKey = u"model_rotation_z"_s;
const QString SettingsManager::modelPositionXKey = u"model_position_x"_s;
const QString SettingsManager::modelPositionYKey = u"model_position_y"_s;
const QString SettingsManager::modelPositionZKey = u"model_position_z"_s;
const QString SettingsManager::doNotShowAgainResetSensorsDialogKey
    = u"do_not_show_again_reset_sensors_dialog"_s;

static QString groupedKey(const QString &key)
{
    return u"%1/%2"_s.arg(SettingsManager::groupName, key);
}

SettingsManager::SettingsManager(QObject *parent)
    : QObject(parent)
{}

void SettingsManager::setValue(const QString &key, const QVariant &value)
{
    if (value.typeId() == QMetaType::Double && qIsNaN(value.toDouble()))
        return;
    const QString storedKey = groupedKey(key);
    if (storedValue(storedKey, {}) != value)
        storeValue(storedKey, value);
}

QVariant SettingsManager::value(const QString &key, const QVariant &defaultValue) const
{
    return storedValue(groupedKey(key), defaultValue);
}

int SettingsManager::readAccelerometerX() const
{
    return value(accelerometerXKey, 0).toInt();
}

int SettingsManager::readAccelerometerY() const
{
    return value(accelerometerYKey, 0).toInt();
}

int SettingsManager::readAccelerometerZ() const
{
    return value(accelerometerZKey, AccelerometerModel::defaultZValue).toInt();
}

int SettingsManager::readAlsLuxValue() const
{
    return value(alsKey, AlsModel::defaultLux).toInt();
}

double SettingsManager::readGyroscopeX() const
{
    return value(gyroscopeXKey, 0.0).toDouble();
}

double SettingsManager::readGyroscopeY() const
{
    return value(gyroscopeYKey, 0.0).toDouble();
}

double SettingsManager::readGyroscopeZ() const
{
    return value(gyroscopeZKey, GyroscopeModel::defaultZValue).toDouble();
}

double SettingsManager::readMagneticFieldX() const
{
    return value(magneticFieldXKey, 0.0).toDouble();
}

double SettingsManager::readMagneticFieldY() const
{
    return value(magneticFieldYKey, MagneticFieldModel::defaultYValue).toDouble();
}

double SettingsManager::readMagneticFieldZ() const
{
    return value(magneticFieldZKey, MagneticFieldModel::defaultZValue).toDouble();
}

double SettingsManager::readMagnetometerX() const
{
    return value(magnetometerXKey, MagnetometerModel::defaultXValue).toDouble();
}

double SettingsManager::readMagnetometerY() const
{
    return value(magnetometerYKey, 0.0).toDouble();
}

double SettingsManager::readMagnetometerZ() const
{
    return value(magnetometerZKey, 0.0).toDouble();
}

int SettingsManager::readMagnetometerCalibLevel() const
{
    return value(magnetometerCalibLevelKey, MagnetometerModel::defaultCalibLevel).toInt();
}

int SettingsManager::readProximitySensorReflectanceValue() const
{
    return value(proximityReflectanceKey, ProximityModel::defaultReflectance).toInt();
}

TapModel::TapDirection SettingsManager::readTapSensorValue() const
{
    return static_cast<TapModel::TapDirection>(value(tapKey, TapModel::Undefined).toInt());
}

double SettingsManager::readGpsLatitude() const
{
    return value(gpsLatitudeKey, 0.0).toDouble();
}

double SettingsManager::readGpsLongitude() const
{
    return value(gpsLongitudeKey, 0.0).toDouble();
}

double SettingsManager::readGpsAltitude() const
{
    return value(gpsAltitudeKey, 0.0).toDouble();
}

double SettingsManager::read3DModelRotationX() const
{
    return value(modelRotationXKey, 0.0).toDouble();
}

double SettingsManager::read3DModelRotationY() const
{
    return value(modelRotationYKey, 0.0).toDouble();
}

double SettingsManager::read3DModelRotationZ() const
{
    return value(modelRotationZKey, 0.0).toDouble();
}

double SettingsManager::read3DModelPositionX() const
{
    return value(modelPositionXKey, 0.0).toDouble();
}

double SettingsManager::read3DModelPositionY() const
{
    return value(modelPositionYKey, 0.0).toDouble();
}

double SettingsManager::read3DModelPositionZ() const
{
    return value(modelPositionZKey, 0.0).toDouble();
}

bool SettingsManager::readDoNotShowAgainResetSensorsDialog() const
{
    return value(doNotShowAgainResetSensorsDialogKey, false).toBool();
}

void SettingsManager::saveAccelerometerValues(int x, int y, int z)
{
    setValue(accelerometerXKey, x);
    setValue(accelerometerYKey, y);
    setValue(accelerometerZKey, z);
}

void SettingsManager::saveAlsLuxValue(int lux)
{
    setValue(alsKey, lux);
}

void SettingsManager::saveGyroscopeValues(double x, double y, double z)
{
    setValue(gyroscopeXKey, x);
    setValue(gyroscopeYKey, y);
    setValue(gyroscopeZKey, z);
}

void SettingsManager::saveMagneticFieldValues(double x, double y, double z)
{
    setValue(magneticFieldXKey, x);
    setValue(magneticFieldYKey, y);
    setValue(magneticFieldZKey, z);
}

void SettingsManager::saveMagnetometerValues(double x, double y, double z)
{
    setValue(magnetometerXKey, x);
    setValue(magnetometerYKey, y);
    setValue(magnetometerZKey, z);
}

void SettingsManager::saveMagnetometerCalibLevel(int calibrationLevel)
{
    setValue(magnetometerCalibLevelKey, calibrationLevel);
}

void SettingsManager::saveProximitySensorReflectanceValue(int reflectance)
{
    setValue(proximityReflectanceKey, reflectance);
}

void SettingsManager::saveTapSensorValue(TapModel::TapDirection tapDirection)
{
    setValue(tapKey, static_cast<int>(tapDirection));
}

void SettingsManager::saveGpsValues(double latitude, double longitude, double altitude)
{
    saveGpsLatitude(latitude);
    saveGpsLongitude(longitude);
    saveGpsAltitude(altitude);
}

void SettingsManager::saveGpsLatitude(double latitude)
{
    setValue(gpsLatitudeKey, latitude);
}

void SettingsManager::saveGpsLongitude(double longitude)
{
    setValue(gpsLongitudeKey, longitude);
}

void SettingsManager::saveGpsAltitude(double altitude)
{
    setValue(gpsAltitudeKey, altitude);
}

void SettingsManager::save3DModelRotationValues(double x, double y, double z)
{
    setValue(modelRotationXKey, x);
    setValue(modelRotationYKey, y);
    setValue(modelRotationZKey, z);
}

void SettingsManager::save3DModelPositionValues(double x, double y, double z)
{
    setValue(modelPositionXKey, x);
    setValue(modelPositionYKey, y);
    setValue(modelPositionZKey, z);
}

void SettingsManager::saveDoNotShowAgainResetSensorsDialog(bool doNotShowAgain)
{
    setValue(doNotShowAgainResetSensorsDialogKey, doNotShowAgain);
}

} // namespace EmulationManagement::Internal
