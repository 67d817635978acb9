#include "orientationmodel.h"

#include "accelerometermodel.h"

#include <QtMath>

#include <cmath>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

// In degrees. A device must tilt further to its side than to its top or bottom, so that one that is
// held upright and a little askew stays in portrait.
constexpr long sideThreshold = 25;
constexpr long topThreshold = 21;
constexpr double faceThreshold = 300.0; // thousandths of g

static long tiltInDegrees(double component, double otherA, double otherB)
{
    const double tilt = std::atan(component / std::sqrt(otherA * otherA + otherB * otherB));
    return std::isfinite(tilt) ? std::lround(qRadiansToDegrees(tilt)) : 0; // no tilt in free fall
}

static QOrientationReading::Orientation tiltOf(double x, double y, double z)
{
    const long side = tiltInDegrees(x, y, z);
    if (std::abs(side) > sideThreshold)
        return side > 0 ? QOrientationReading::RightUp : QOrientationReading::LeftUp;
    const long top = tiltInDegrees(y, x, z);
    if (std::abs(top) >= topThreshold)
        return top > 0 ? QOrientationReading::TopUp : QOrientationReading::TopDown;
    return QOrientationReading::Undefined;
}

OrientationModel::OrientationModel(QObject *parent)
    : SensorModel(parent)
{}

QString OrientationModel::name() const
{
    return u"orientation"_s;
}

void OrientationModel::setDefaultValues()
{
    setOrientation(0.0, 0.0, AccelerometerModel::defaultZValue);
}

QOrientationReading::Orientation OrientationModel::orientation() const
{
    return m_orientation;
}

void OrientationModel::setOrientation(QOrientationReading::Orientation orientation)
{
    m_orientation = orientation;
    Q_EMIT orientationChanged();
}

void OrientationModel::setOrientation(double x, double y, double z)
{
    const QOrientationReading::Orientation tilt = tiltOf(x, y, z);
    if (std::abs(z) >= faceThreshold) {
        const bool faceDown = z <= 0 && tilt == QOrientationReading::Undefined;
        m_face = faceDown ? QOrientationReading::FaceDown : QOrientationReading::FaceUp;
    }
    setOrientation(tilt != QOrientationReading::Undefined ? tilt : m_face);
}

} // namespace EmulationManagement::Internal
