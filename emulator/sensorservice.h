#pragma once

#include <QDBusContext>
#include <QMap>
#include <QObject>

namespace NimbraEmulator {

/// The readings that were set last.
struct SensorReadings
{
    template<typename Number>
    struct Vector
    {
        Number x = 0;
        Number y = 0;
        Number z = 0;
    };

    Vector<int> accelerometer; ///< mG
    int als = 0;               ///< lux
    Vector<double> gyroscope;    ///< degrees per second
    Vector<double> magnetometer; ///< T
    int magnetometerCalibrationLevel = 0;
    int proximity = 0; ///< reflectance
    int tap = 0;       ///< direction
};

/// The sensor service on the emulator's system bus. Its slots are the methods of its D-Bus
/// interface; D-Bus refuses calls with other argument types.
class SensorService : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    static constexpr QLatin1StringView serviceName{"org.vexa.SensorfwEmulationManagement"};
    static constexpr QLatin1StringView objectPath{"/org/vexa/SensorfwEmulationManagement"};

    explicit SensorService(QObject *parent = nullptr);

    /// The sensors by name, true for those that are switched on.
    [[nodiscard]] const QMap<QString, bool> &sensors() const { return m_sensors; }
    [[nodiscard]] const SensorReadings &readings() const { return m_readings; }

Q_SIGNALS:
    void changed();

public Q_SLOTS:
    // The next three functions fail with …Error.UnknownSensor for an unknown name.
    void enableSensor(const QString &sensor);
    void disableSensor(const QString &sensor);
    bool enabled(const QString &sensor);

    void setAccelerometerValues(int x, int y, int z);
    void setAccelerometerX(int x);
    void setAccelerometerY(int y);
    void setAccelerometerZ(int z);
    void setAlsValue(int lux);
    void setGyroscopeValues(double x, double y, double z);
    void setGyroscopeX(double x);
    void setGyroscopeY(double y);
    void setGyroscopeZ(double z);
    void setMagnetometerValues(double x, double y, double z);
    void setMagnetometerX(double x);
    void setMagnetometerY(double y);
    void setMagnetometerZ(double z);
    void setMagnetometerCalibrationLevel(int level);
    void setProximitySensorValue(int reflectance);
    void setTapSensorValue(int direction);

private:
    bool isKnown(const QString &sensor);
    void setEnabled(const QString &sensor, bool enabled);

    template<typename Value>
    void store(Value &reading, const Value &value)
    {
        reading = value;
        Q_EMIT changed();
    }

    QMap<QString, bool> m_sensors;
    SensorReadings m_readings;
};

} // namespace NimbraEmulator
