#include "magneticfieldmodel.h"

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

MagneticFieldModel::MagneticFieldModel(QObject *parent)
    : DoubleXYZModel(0.0, defaultYValue, defaultZValue, parent)
{}

QString MagneticFieldModel::name() const
{
    return u"magneticField"_s;
}

void MagneticFieldModel::setDefaultValues()
{
    setValues(0.0, defaultYValue, defaultZValue);
}

} // namespace EmulationManagement::Internal
