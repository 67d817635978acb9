#pragma once

#include "xyzmodel.h"

#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// Acceleration in thousandths of standard gravity: 1000 is 1 g.
class AccelerometerModel final : public IntXYZModel
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(double gravityAccelEarth MEMBER gravityAccelEarth CONSTANT)
    Q_PROPERTY(int unitsPerG MEMBER unitsPerG CONSTANT)

public:
    /// Standard gravity in m/s² (CGPM 1901).
    static constexpr double gravityAccelEarth = 9.80665;
    static constexpr int unitsPerG = 1000;
    /// A device that lies on its back reads 1 g along z.
    static constexpr int defaultZValue = unitsPerG;

    explicit AccelerometerModel(QObject *parent = nullptr);

    QString name() const override;
    void setDefaultValues();
};

} // namespace EmulationManagement::Internal
