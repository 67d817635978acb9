#pragma once

#include "tapmodel.h"

#include <QObject>
#include <QString>
#include <QVariant>
#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/*!
 * Keeps values in the IDE's settings, under the group "emulationmanagement".
 *
 * A value that was never saved reads as its sensor's default. A value that does not convert reads
 * as 0, 0.0 or false. Units are those of the sensor models. The position is in degrees and metres.
 */
class SettingsManager : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    static const QString groupName;
    static const QString accelerometerXKey;
    static const QString accelerometerYKey;
    static const QString accelerometerZKey;
    static const QString alsKey;
    static const QString gyroscopeXKey;
    static const QString gyroscopeYKey;
    static const QString gyroscopeZKey;
    static const QString magneticFieldXKey;
    static const QString magneticFieldYKey;
    static const QString magneticFieldZKey;
    static const QString magnetometerXKey;
    static const QString magnetometerYKey;
    static const QString magnetometerZKey;
    static const QString magnetometerCalibLevelKey;
    static const QString proximityReflectanceKey;
    static const QString tapKey;
    static const QString gpsLatitudeKey;
    static const QString gpsLongitudeKey;
    static const QString gpsAltitudeKey;
    static const QString modelRotationXKey;
    static const QString modelRotationYKey;
    static const QString modelRotationZKey;
    static const QString modelPositionXKey;
    static const QString modelPositionYKey;
    static const QString modelPositionZKey;
    static const QString doNotShowAgainResetSensorsDialogKey;

    explicit SettingsManager(QObject *parent = nullptr);

    /// Writes a value if it differs from the saved one. Ignores NaN.
    void setValue(const QString &key, const QVariant &value);
    [[nodiscard]] QVariant value(const QString &key, const QVariant &defaultValue) const;

    Q_INVOKABLE int readAccelerometerX() const;
    Q_INVOKABLE int readAccelerometerY() const;
    Q_INVOKABLE int readAccelerometerZ() const;
    Q_INVOKABLE int readAlsLuxValue() const;
    Q_INVOKABLE double readGyroscopeX() const;
    Q_INVOKABLE double readGyroscopeY() const;
    Q_INVOKABLE double readGyroscopeZ() const;
    Q_INVOKABLE double readMagneticFieldX() const;
    Q_INVOKABLE double readMagneticFieldY() const;
    Q_INVOKABLE double readMagneticFieldZ() const;
    Q_INVOKABLE double readMagnetometerX() const;
    Q_INVOKABLE double readMagnetometerY() const;
    Q_INVOKABLE double readMagnetometerZ() const;
    Q_INVOKABLE int readMagnetometerCalibLevel() const;
    Q_INVOKABLE int readProximitySensorReflectanceValue() const;
    Q_INVOKABLE EmulationManagement::Internal::TapModel::TapDirection readTapSensorValue() const;
    Q_INVOKABLE double readGpsLatitude() const;
    Q_INVOKABLE double readGpsLongitude() const;
    Q_INVOKABLE double readGpsAltitude() const;
    Q_INVOKABLE double read3DModelRotationX() const;
    Q_INVOKABLE double read3DModelRotationY() const;
    Q_INVOKABLE double read3DModelRotationZ() const;
    Q_INVOKABLE double read3DModelPositionX() const;
    Q_INVOKABLE double read3DModelPositionY() const;
    Q_INVOKABLE double read3DModelPositionZ() const;
    Q_INVOKABLE bool readDoNotShowAgainResetSensorsDialog() const;

    Q_INVOKABLE void saveAccelerometerValues(int x, int y, int z);
    Q_INVOKABLE void saveAlsLuxValue(int lux);
    Q_INVOKABLE void saveGyroscopeValues(double x, double y, double z);
    Q_INVOKABLE void saveMagneticFieldValues(double x, double y, double z);
    Q_INVOKABLE void saveMagnetometerValues(double x, double y, double z);
    Q_INVOKABLE void saveMagnetometerCalibLevel(int calibrationLevel);
    Q_INVOKABLE void saveProximitySensorReflectanceValue(int reflectance);
    Q_INVOKABLE void saveTapSensorValue(
        EmulationManagement::Internal::TapModel::TapDirection tapDirection);
    Q_INVOKABLE void saveGpsValues(double latitude, double longitude, double altitude);
    Q_INVOKABLE void saveGpsLatitude(double latitude);
    Q_INVOKABLE void saveGpsLongitude(double longitude);
    Q_INVOKABLE void saveGpsAltitude(double altitude);
    Q_INVOKABLE void save3DModelRotationValues(double x, double y, double z);
    Q_INVOKABLE void save3DModelPositionValues(double x, double y, double z);
    Q_INVOKABLE void saveDoNotShowAgainResetSensorsDialog(bool doNotShowAgain);
};

} // namespace EmulationManagement::Internal
