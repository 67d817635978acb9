#pragma once

#include "sensormodel.h"

#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// Reflectance in front of the proximity sensor: 0 is near, 10 is far.
class ProximityModel final : public SensorModel
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(int reflectance READ reflectance WRITE setReflectance NOTIFY reflectanceChanged)

public:
    static constexpr int defaultReflectance = 5;
    static constexpr int nearReflectance = 0;
    static constexpr int farReflectance = 10;

    explicit ProximityModel(QObject *parent = nullptr);

    QString name() const override;
    void setDefaultValues();

    [[nodiscard]] int reflectance() const;
    void setReflectance(int reflectance);

Q_SIGNALS:
    void reflectanceChanged();

private:
    int m_reflectance = defaultReflectance;
};

} // namespace EmulationManagement::Internal
