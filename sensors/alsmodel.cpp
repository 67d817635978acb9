#include "alsmodel.h"

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

AlsModel::AlsModel(QObject *parent)
    : SensorModel(parent)
{}

QString AlsModel::name() const
{
    return u"als"_s;
}

void AlsModel::setDefaultValues()
{
    setLux(defaultLux);
}

int AlsModel::lux() const
{
    return m_lux;
}

void AlsModel::setLux(int lux)
{
    m_lux = lux;
    Q_EMIT luxChanged();
}

} // namespace EmulationManagement::Internal
