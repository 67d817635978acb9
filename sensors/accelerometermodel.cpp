#include "accelerometermodel.h"

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

AccelerometerModel::AccelerometerModel(QObject *parent)
    : IntXYZModel(0, 0, defaultZValue, parent)
{}

QString AccelerometerModel::name() const
{
    return u"accelerometer"_s;
}

void AccelerometerModel::setDefaultValues()
{
    setValues(0, 0, defaultZValue);
}

} // namespace EmulationManagement::Internal
