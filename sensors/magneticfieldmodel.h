#pragma once

#include "xyzmodel.h"

#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// The magnetic field around the device in microtesla. It is not sent to the emulator.
class MagneticFieldModel final : public DoubleXYZModel
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    static constexpr double defaultYValue = 5.95;
    static constexpr double defaultZValue = -48.76;

    explicit MagneticFieldModel(QObject *parent = nullptr);

    QString name() const override;
    void setDefaultValues();
};

} // namespace EmulationManagement::Internal
