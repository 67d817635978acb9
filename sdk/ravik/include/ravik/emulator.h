#pragma once

#include "devicemodeldata.h"
#include "ravik_global.h"

#include <QObject>

namespace Ravik {

class VirtualMachine;

/// An emulated device: a name, the model that it poses as, and the machine that it runs in.
class RAVIK_EXPORT Emulator : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~Emulator() override;

    [[nodiscard]] virtual QString name() const = 0;
    /// Lives as long as the emulator.
    [[nodiscard]] virtual VirtualMachine *virtualMachine() const = 0;
    [[nodiscard]] virtual DeviceModelData deviceModel() const = 0;

Q_SIGNALS:
    void deviceModelNameChanged(const QString &deviceModelName);
};

} // namespace Ravik
