#pragma once

#include "xyzmodel.h"

#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// Magnetic flux density in tesla, and the sensor's calibration level (0 to 3).
class MagnetometerModel final : public DoubleXYZModel
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(double teslaPerMicrotesla MEMBER teslaPerMicrotesla CONSTANT)
    Q_PROPERTY(int calibrationLevel READ calibrationLevel WRITE setCalibrationLevel
                   NOTIFY calibrationLevelChanged)

public:
    /// The emulator expects tesla, the pages show microtesla.
    static constexpr double teslaPerMicrotesla = 0.000001;
    static constexpr double defaultXValue = 4.3e-5;
    static constexpr int defaultCalibLevel = 0;

    explicit MagnetometerModel(QObject *parent = nullptr);

    QString name() const override;
    void setDefaultValues();

    [[nodiscard]] int calibrationLevel() const;
    void setCalibrationLevel(int calibrationLevel);

Q_SIGNALS:
    void calibrationLevelChanged();

private:
    int m_calibrationLevel = defaultCalibLevel;
};

} // namespace EmulationManagement::Internal
