#pragma once

#include "sensormodel.h"

#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// Heading in whole degrees from magnetic north, and the magnetometer's calibration level.
class CompassModel final : public SensorModel
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(int azimuth READ azimuth WRITE setAzimuth NOTIFY azimuthChanged)
    Q_PROPERTY(int calibrationLevel READ calibrationLevel WRITE setCalibrationLevel
                   NOTIFY calibrationLevelChanged)

public:
    explicit CompassModel(QObject *parent = nullptr);

    QString name() const override;
    /// Sets the heading that the default accelerometer and magnetometer readings give.
    void setDefaultValues();

    [[nodiscard]] int azimuth() const;
    void setAzimuth(int azimuth);

    [[nodiscard]] int calibrationLevel() const;
    void setCalibrationLevel(int calibrationLevel);

    /*!
     * The tilt-compensated heading, 0 to 359 degrees, of a device that reads the acceleration
     * \a ax, \a ay, \a az (thousandths of g) and the flux density \a mx, \a my, \a mz (tesla).
     */
    static int calculateAzimuth(int ax, int ay, int az, double mx, double my, double mz);

Q_SIGNALS:
    void azimuthChanged();
    void calibrationLevelChanged();

private:
    int m_azimuth = 0;
    int m_calibrationLevel = 0;
};

} // namespace EmulationManagement::Internal
