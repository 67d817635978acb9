#include "compassmodel.h"

#include "accelerometermodel.h"
#include "magnetometermodel.h"

#include <QtMath>

#include <cmath>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

constexpr double fullTurn = 360.0;
constexpr double gPerUnit = 1.0 / AccelerometerModel::unitsPerG;

CompassModel::CompassModel(QObject *parent)
    : SensorModel(parent)
{}

QString CompassModel::name() const
{
    return u"compass"_s;
}

void CompassModel::setDefaultValues()
{
    setAzimuth(calculateAzimuth(0, 0, AccelerometerModel::defaultZValue,
                                MagnetometerModel::defaultXValue, 0.0, 0.0));
    setCalibrationLevel(MagnetometerModel::defaultCalibLevel);
}

int CompassModel::azimuth() const
{
    return m_azimuth;
}

void CompassModel::setAzimuth(int azimuth)
{
    m_azimuth = azimuth;
    Q_EMIT azimuthChanged();
}

int CompassModel::calibrationLevel() const
{
    return m_calibrationLevel;
}

void CompassModel::setCalibrationLevel(int calibrationLevel)
{
    m_calibrationLevel = calibrationLevel;
    Q_EMIT calibrationLevelChanged();
}

int CompassModel::calculateAzimuth(int ax, int ay, int az, double mx, double my, double mz)
{
    constexpr double g = AccelerometerModel::gravityAccelEarth;
    const double accelerationX = ax * gPerUnit * g;
    const double accelerationY = ay * -gPerUnit * g;
    const double accelerationZ = az * -gPerUnit * g;

    const double roll = std::atan2(accelerationX, accelerationZ);
    const double pitch = std::atan(
        accelerationY / (accelerationX * std::sin(roll) + accelerationZ * std::cos(roll)));
    const double yaw = std::atan2(
        std::sin(roll) * mz - mx * std::cos(roll),
        my * std::cos(pitch) + (mx * std::sin(roll) + mz * std::cos(roll)) * std::sin(pitch));
    if (!std::isfinite(yaw)) // in free fall, the readings do not tell where the horizon is
        return 0;
    return static_cast<int>(std::lround(fullTurn - qRadiansToDegrees(yaw)))
           % static_cast<int>(fullTurn);
}

} // namespace EmulationManagement::Internal
