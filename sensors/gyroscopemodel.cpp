#include "gyroscopemodel.h"

namespace EmulationManagement::Internal {

GyroscopeModel::GyroscopeModel(QObject *parent)
    : DoubleXYZModel(0.0, 0.0, defaultZValue, parent)
{}

QString GyroscopeModel::name() const
{
    return QStringLiteral("gyroscope");
}

void GyroscopeModel::setDefaultValues()
{
    setValues(0.0, 0.0, defaultZValue);
}

} // namespace EmulationManagement::Internal
