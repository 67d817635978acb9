#pragma once

#include "sensormodel.h"

#include <QOrientationReading>
#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// Which side of the device is up.
class OrientationModel final : public SensorModel
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QOrientationReading::Orientation orientation READ orientation WRITE setOrientation
                   NOTIFY orientationChanged)

public:
    enum OrientationMode { Portrait = 0, Landscape = 1 };
    Q_ENUM(OrientationMode)

    explicit OrientationModel(QObject *parent = nullptr);

    QString name() const override;
    /// Sets the orientation of a device that lies on its back.
    void setDefaultValues();

    [[nodiscard]] QOrientationReading::Orientation orientation() const;
    void setOrientation(QOrientationReading::Orientation orientation);
    /*!
     * Derives the orientation from the acceleration \a x, \a y, \a z in thousandths of g.
     *
     * A device that is not tilted lies on its back or its face. If |z| is below 300, which is too
     * little to tell which, it keeps the last of the two.
     */
    void setOrientation(double x, double y, double z);

Q_SIGNALS:
    void orientationChanged();

private:
    QOrientationReading::Orientation m_orientation = QOrientationReading::Undefined;
    QOrientationReading::Orientation m_face = QOrientationReading::FaceUp;
};

} // namespace EmulationManagement::Internal
