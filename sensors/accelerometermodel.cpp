#include "accelerometermodel.h"

namespace EmulationManagement::Internal {

AccelerometerModel::AccelerometerModel(QObject *parent)
    : IntXYZModel(0, 0, defaultZValue, parent)
{}

QString AccelerometerModel::name() const
{
    return QStringLiteral("accelerometer");
}

void AccelerometerModel::setDefaultValues()
{
    setValues(0, 0, defaultZValue);
}

} // namespace EmulationManagement::Internal
