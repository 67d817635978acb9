#include "tapmodel.h"

#include <QMetaEnum>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

TapModel::TapModel(QObject *parent)
    : SensorModel(parent)
{}

bool TapModel::isTapDirection(int value)
{
    return QMetaEnum::fromType<TapDirection>().valueToKey(value) != nullptr;
}

QString TapModel::name() const
{
    return u"tap"_s;
}

void TapModel::setDefaultValues()
{
    setTapDirection(Undefined);
}

TapModel::TapDirection TapModel::tapDirection() const
{
    return m_tapDirection;
}

void TapModel::setTapDirection(TapDirection tapDirection)
{
    m_tapDirection = tapDirection;
    Q_EMIT tapDirectionChanged();
}

} // namespace EmulationManagement::Internal
