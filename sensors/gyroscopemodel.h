#pragma once

#include "xyzmodel.h"

#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// Angular velocity in degrees per second.
class GyroscopeModel final : public DoubleXYZModel
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    /// 0.02 rad/s
    static constexpr double defaultZValue = 1.1459155902616465;

    explicit GyroscopeModel(QObject *parent = nullptr);

    QString name() const override;
    void setDefaultValues();
};

} // namespace EmulationManagement::Internal
