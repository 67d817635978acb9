#include "xyzmodel.h"

namespace EmulationManagement::Internal {

void IntXYZModel::setX(int x)
{
    m_x = x;
    Q_EMIT xChanged();
}

void IntXYZModel::setY(int y)
{
    m_y = y;
    Q_EMIT yChanged();
}

void IntXYZModel::setZ(int z)
{
    m_z = z;
    Q_EMIT zChanged();
}

void DoubleXYZModel::setX(double x)
{
    m_x = x;
    Q_EMIT xChanged();
}

void DoubleXYZModel::setY(double y)
{
    m_y = y;
    Q_EMIT yChanged();
}

void DoubleXYZModel::setZ(double z)
{
    m_z = z;
    Q_EMIT zChanged();
}

} // namespace EmulationManagement::Internal
