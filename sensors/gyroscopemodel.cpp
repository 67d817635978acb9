#include "gyroscopemodel.h"

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

GyroscopeModel::GyroscopeModel(QObject *parent)
    : DoubleXYZModel(0.0, 0.0, defaultZValue, parent)
{}

QString GyroscopeModel::name() const
{
    return u"gyroscope"_s;
}

void GyroscopeModel::setDefaultValues()
{
    setValues(0.0, 0.0, defaultZValue);
}

} // namespace EmulationManagement::Internal
