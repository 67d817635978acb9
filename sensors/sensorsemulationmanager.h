#pragma once

#include "accelerometermodel.h"
#include "alsmodel.h"
#include "compassmodel.h"
#include "gyroscopemodel.h"
#include "magneticfieldmodel.h"
#include "magnetometermodel.h"
#include "orientationmodel.h"
#include "proximitymodel.h"
#include "settingsmanager.h"
#include "tapmodel.h"

#include <link/emulationmanager.h>

#include <QHash>
#include <QMap>
#include <QSet>
#include <QVariant>
#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/*!
 * Sends sensor values to the emulator's sensor service and keeps them in models.
 *
 * A setter makes the D-Bus call first and then updates the model and the values that are derived
 * from it, whether or not an emulator is connected. Values are not checked, because the pages limit
 * them. Units are those of the models.
 *
 * The models start with the values in the settings. The settings are written only when a value has
 * changed since they were last read or written.
 *
 * Two maps by sensor name tell which sensors the device has (availability) and which are switched
 * on in the emulator (enabled states). Neither map has the magnetic field, because it is never sent
 * to the emulator.
 */
class SensorsEmulationManager : public EmulationManager
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(EmulationManagement::Internal::AccelerometerModel *accelerometer READ accelerometer
                   CONSTANT)
    Q_PROPERTY(EmulationManagement::Internal::MagnetometerModel *magnetometer READ magnetometer
                   CONSTANT)
    Q_PROPERTY(EmulationManagement::Internal::MagneticFieldModel *magneticField READ magneticField
                   CONSTANT)
    Q_PROPERTY(EmulationManagement::Internal::CompassModel *compass READ compass CONSTANT)
    Q_PROPERTY(EmulationManagement::Internal::OrientationModel *orientation READ orientation
                   CONSTANT)
    Q_PROPERTY(EmulationManagement::Internal::GyroscopeModel *gyroscope READ gyroscope CONSTANT)
    Q_PROPERTY(EmulationManagement::Internal::AlsModel *als READ als CONSTANT)
    Q_PROPERTY(EmulationManagement::Internal::ProximityModel *proximity READ proximity CONSTANT)
    Q_PROPERTY(EmulationManagement::Internal::TapModel *tap READ tap CONSTANT)
    Q_PROPERTY(QVariantMap sensorsEnabledStates READ sensorsEnabledStates
                   NOTIFY sensorsEnabledStatesChanged)
    Q_PROPERTY(QVariantMap sensorsAvailability READ sensorsAvailability
                   NOTIFY sensorsAvailabilityChanged)

public:
    explicit SensorsEmulationManager(QObject *parent = nullptr);
    /// Saves the values.
    ~SensorsEmulationManager() override;

    QString bus() const override;
    QString dbusService() const override;
    QString dbusObject() const override;
    QString dbusInterface() const override;
    /// Handles the answer to checkSensorState(). Switches off a sensor that the device lacks.
    void processDBusMethodsReturnValues(const QStringList &values) override;

    [[nodiscard]] AccelerometerModel *accelerometer() const;
    [[nodiscard]] MagnetometerModel *magnetometer() const;
    [[nodiscard]] MagneticFieldModel *magneticField() const;
    [[nodiscard]] CompassModel *compass() const;
    [[nodiscard]] OrientationModel *orientation() const;
    [[nodiscard]] GyroscopeModel *gyroscope() const;
    [[nodiscard]] AlsModel *als() const;
    [[nodiscard]] ProximityModel *proximity() const;
    [[nodiscard]] TapModel *tap() const;
    [[nodiscard]] QVariantMap sensorsEnabledStates() const;
    [[nodiscard]] QVariantMap sensorsAvailability() const;

    /// Marks all sensors as available, without telling the emulator.
    void initSensorsAvailability();
    /// Marks a sensor as available or not, and switches it on or off in the emulator.
    void setSensorAvailable(const QString &name, bool available);
    /// Marks all sensors as available and switches them on in the emulator.
    void makeAllSensorsAvailable();

    Q_INVOKABLE void enableSensor(const QString &sensorName);
    Q_INVOKABLE void disableSensor(const QString &sensorName);
    /// Asks the emulator whether a sensor is switched on. The answer changes the enabled states.
    Q_INVOKABLE void checkSensorState(const QString &sensorName);
    /*!
     * Remembers that the user switched a sensor on or off, without telling the emulator. After each
     * reconnection, the sensors that the user switched off are switched off again.
     */
    Q_INVOKABLE void setSensorEnabled(const QString &name, bool enabled);

    Q_INVOKABLE void setAccelerometerValues(int x, int y, int z);
    Q_INVOKABLE void setAccelerometerX(int x);
    Q_INVOKABLE void setAccelerometerY(int y);
    Q_INVOKABLE void setAccelerometerZ(int z);
    Q_INVOKABLE void setAlsLuxValue(int lux);
    Q_INVOKABLE void setAlsLightLevel(EmulationManagement::Internal::AlsModel::LightLevel level);
    Q_INVOKABLE void setGyroscopeValues(double x, double y, double z);
    Q_INVOKABLE void setGyroscopeX(double x);
    Q_INVOKABLE void setGyroscopeY(double y);
    Q_INVOKABLE void setGyroscopeZ(double z);
    Q_INVOKABLE void setMagnetometerValues(double x, double y, double z);
    Q_INVOKABLE void setMagnetometerX(double x);
    Q_INVOKABLE void setMagnetometerY(double y);
    Q_INVOKABLE void setMagnetometerZ(double z);
    Q_INVOKABLE void setMagnetometerCalibrationLevel(int calibrationLevel);
    Q_INVOKABLE void setMagneticFieldValues(double x, double y, double z);
    Q_INVOKABLE void setMagneticFieldX(double x);
    Q_INVOKABLE void setMagneticFieldY(double y);
    Q_INVOKABLE void setMagneticFieldZ(double z);
    /// Lays the device flat and turns the magnetometer so that it reads \a azimuth (degrees).
    Q_INVOKABLE void setCompassAzimuth(int azimuth);
    Q_INVOKABLE void setCompassCalibrationLevel(int calibrationLevel);
    /// Sets an acceleration that gives a QOrientationReading::Orientation; Undefined is ignored.
    Q_INVOKABLE void setOrientation(int orientation);
    Q_INVOKABLE void setProximitySensorReflectanceValue(int reflectance);
    Q_INVOKABLE void setProximitySensorNearValue(bool near);
    Q_INVOKABLE void setTapSensorValue(
        EmulationManagement::Internal::TapModel::TapDirection tapDirection);
    /// Sends the default of every sensor. The magnetic field keeps its values.
    Q_INVOKABLE void setDefaultValues();

    /// Sends which sensors are on, and all values. The first time, it asks which are on instead.
    void setupSensors();
    /// Saves the models' values if one has changed since they were last read or saved.
    void saveCurrentSensorsValues();

Q_SIGNALS:
    void sensorsEnabledStatesChanged();
    /// The saved values were restored and sent to a newly connected emulator.
    void sensorsInitialized();
    void sensorsAvailabilityChanged();

private:
    void readSensorsValues();
    void restoreSensorsValues();
    [[nodiscard]] QVariantList currentSensorsValues() const;
    void noteSensorState(const QString &name, bool enabled);
    void updateAzimuth();
    void updateOrientation();

    AccelerometerModel *m_accelerometer;
    MagnetometerModel *m_magnetometer;
    MagneticFieldModel *m_magneticField;
    CompassModel *m_compass;
    OrientationModel *m_orientation;
    GyroscopeModel *m_gyroscope;
    AlsModel *m_als;
    ProximityModel *m_proximity;
    TapModel *m_tap;
    QMap<QString, QVariant> m_sensorsEnabledStates;
    QHash<QString, SensorModel *> m_sensors;
    SettingsManager m_settings;
    QMap<QString, QVariant> m_sensorsAvailability;
    bool m_sensorsSetUp = false; // the emulator was asked for its states once
    QSet<QString> m_switchedOffByUser;
    QVariantList m_savedSensorsValues; // as they were last read or saved
};

} // namespace EmulationManagement::Internal
