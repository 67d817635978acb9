#pragma once

#include "sensormodel.h"

#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// The direction from which the device was last tapped.
class TapModel : public SensorModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Could not create the TapModel instance")
    Q_PROPERTY(EmulationManagement::Internal::TapModel::TapDirection tapDirection READ tapDirection
                   WRITE setTapDirection NOTIFY tapDirectionChanged)

public:
    /// The emulator's sensor service defines these numbers. Its single directions of z come before
    /// those of y.
    enum TapDirection {
        Undefined = -1,
        X_Both = 0,
        Y_Both = 1,
        Z_Both = 2,
        X_Pos = 3,
        X_Neg = 4,
        Z_Neg = 5,
        Z_Pos = 6,
        Y_Pos = 7,
        Y_Neg = 8,
    };
    Q_ENUM(TapDirection)

    explicit TapModel(QObject *parent = nullptr);

    [[nodiscard]] static bool isTapDirection(int value);

    QString name() const override;
    void setDefaultValues();

    [[nodiscard]] TapDirection tapDirection() const;
    void setTapDirection(TapDirection tapDirection);

Q_SIGNALS:
    void tapDirectionChanged();

private:
    TapDirection m_tapDirection = Undefined;
};

} // namespace EmulationManagement::Internal
