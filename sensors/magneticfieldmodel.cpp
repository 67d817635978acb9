#include "magneticfieldmodel.h"

namespace EmulationManagement::Internal {

MagneticFieldModel::MagneticFieldModel(QObject *parent)
    : DoubleXYZModel(0.0, defaultYValue, defaultZValue, parent)
{}

QString MagneticFieldModel::name() const
{
    return QStringLiteral("magneticField");
}

void MagneticFieldModel::setDefaultValues()
{
    setValues(0.0, defaultYValue, defaultZValue);
}

} // namespace EmulationManagement::Internal
