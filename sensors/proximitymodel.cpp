#include "proximitymodel.h"

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

ProximityModel::ProximityModel(QObject *parent)
    : SensorModel(parent)
{}

QString ProximityModel::name() const
{
    return u"proximity"_s;
}

void ProximityModel::setDefaultValues()
{
    setReflectance(defaultReflectance);
}

int ProximityModel::reflectance() const
{
    return m_reflectance;
}

void ProximityModel::setReflectance(int reflectance)
{
    m_reflectance = reflectance;
    Q_EMIT reflectanceChanged();
}

} // namespace EmulationManagement::Internal
