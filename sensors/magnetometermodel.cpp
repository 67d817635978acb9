#include "magnetometermodel.h"

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

MagnetometerModel::MagnetometerModel(QObject *parent)
    : DoubleXYZModel(defaultXValue, 0.0, 0.0, parent)
{}

QString MagnetometerModel::name() const
{
    return u"magnetometer"_s;
}

void MagnetometerModel::setDefaultValues()
{
    setValues(defaultXValue, 0.0, 0.0);
    setCalibrationLevel(defaultCalibLevel);
}

int MagnetometerModel::calibrationLevel() const
{
    return m_calibrationLevel;
}

void MagnetometerModel::setCalibrationLevel(int calibrationLevel)
{
    m_calibrationLevel = calibrationLevel;
    Q_EMIT calibrationLevelChanged();
}

} // namespace EmulationManagement::Internal
