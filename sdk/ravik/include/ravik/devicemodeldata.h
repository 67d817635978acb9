#pragma once

#include <QString>

namespace Ravik {

/// A kind of device that an emulator can pose as.
struct DeviceModelData
{
    QString name;

    friend bool operator==(const DeviceModelData &, const DeviceModelData &) = default;
};

} // namespace Ravik
