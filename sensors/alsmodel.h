#pragma once

#include "sensormodel.h"

#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// Ambient light in lux.
class AlsModel : public SensorModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Could not create the AlsModel instance")
    Q_PROPERTY(int lux READ lux WRITE setLux NOTIFY luxChanged)

public:
    /// The value of each level is the lux at which it begins.
    enum LightLevel {
        Undefined = -1,
        Dark = 0,
        Twilight = 10,
        Light = 80,
        Bright = 400,
        Sunny = 2500,
    };
    Q_ENUM(LightLevel)

    static constexpr int defaultLux = 100;

    explicit AlsModel(QObject *parent = nullptr);

    QString name() const override;
    void setDefaultValues();

    [[nodiscard]] int lux() const;
    void setLux(int lux);

Q_SIGNALS:
    void luxChanged();

private:
    int m_lux = defaultLux;
};

} // namespace EmulationManagement::Internal
