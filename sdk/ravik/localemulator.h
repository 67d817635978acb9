#pragma once

#include "ravik/emulator.h"

namespace Ravik {

struct EmulatorSettings;
struct HostSettings;

namespace Internal {

class LocalMachine;

/// An emulator of the settings file; the local emulator program runs it.
class LocalEmulator final : public Emulator
{
    Q_OBJECT

public:
    LocalEmulator(const EmulatorSettings &settings, const HostSettings &host, QObject *parent);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] VirtualMachine *virtualMachine() const override;
    [[nodiscard]] DeviceModelData deviceModel() const override;

    [[nodiscard]] LocalMachine *machine() const;
    void setDeviceModel(const QString &modelName);

private:
    LocalMachine *const m_machine; // a child
};

} // namespace Internal
} // namespace Ravik
