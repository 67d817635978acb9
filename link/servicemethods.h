#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <limits>
#include <span>

/*!
 * \file
 * The methods that can be called in the emulator, each described once: the log of calls,
 * recordings, the command line and the table in docs/emulator-link.md all take names, types, units
 * and ranges from here.
 */

namespace EmulationManagement::Internal {

/// One argument of a method.
struct MethodArgument
{
    enum class Type {
        Int32,
        Double,
        Boolean,
        String,
        Points ///< arrays of latitude, longitude, altitude and interval
    };
    static constexpr double unlimited = std::numeric_limits<double>::infinity();

    QLatin1StringView name;
    Type type = Type::Int32;
    QLatin1StringView unit = {}; ///< in English; empty for a number without a unit
    double minimum = -unlimited;
    double maximum = unlimited;
    /// Decimals of a double on the wire; negative for six significant digits.
    int decimals = -1;
    std::span<const QLatin1StringView> texts = {}; ///< the accepted texts; empty if all are
    bool mayBeMissing = false; ///< a call may end before this argument
};

struct Service;

/// One method of a service.
struct ServiceMethod
{
    const Service *service = nullptr;
    QLatin1StringView name;
    std::span<const MethodArgument> arguments = {};
    QLatin1StringView result = {}; ///< what the method returns, in English; empty for nothing
};

/// A service of the emulator.
struct Service
{
    QLatin1StringView name;        ///< in recordings and on the command line
    QLatin1StringView dbusName;    ///< also the name of its interface; empty if it has no methods
    QLatin1StringView dbusObject;
    std::span<const ServiceMethod> methods;
};

extern const Service sensorsService;
extern const Service locationService;
/// The camera's stream has no D-Bus methods. Its starts and stops are logged and recorded as if it
/// had.
extern const Service cameraService;

/// All services: sensors, location, camera.
[[nodiscard]] std::span<const Service *const> services();
/// Returns null for an unknown name.
[[nodiscard]] const Service *findService(QStringView name);
/// Returns the part of each request that precedes the method's name.
[[nodiscard]] QString requestAddress(const Service &service);
/// Returns the method that a request calls, and its arguments as a part of \a request. Returns null
/// for a request that is not described.
[[nodiscard]] const ServiceMethod *findMethod(QStringView request, QStringView *arguments);
/// Returns null for an unknown name.
[[nodiscard]] const ServiceMethod *findMethod(const Service &service, QStringView name);

} // namespace EmulationManagement::Internal
