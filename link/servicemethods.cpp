#include "servicemethods.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

using Argument = MethodArgument;
using Type = MethodArgument::Type;

static constexpr int coordinateDecimals = 7;
static constexpr int altitudeDecimals = 2;

static constexpr std::array sensorNames{"accelerometer"_L1, "als"_L1,          "compass"_L1,
                                        "gyroscope"_L1,     "magnetometer"_L1, "orientation"_L1,
                                        "proximity"_L1,     "tap"_L1};
static constexpr Argument sensorName[]
    = {{.name = "sensor"_L1, .type = Type::String, .texts = sensorNames}};

static constexpr Argument acceleration[] = {{.name = "x"_L1, .unit = "mg"_L1},
                                            {.name = "y"_L1, .unit = "mg"_L1},
                                            {.name = "z"_L1, .unit = "mg"_L1}};
static constexpr Argument fluxDensity[] = {{.name = "x"_L1, .type = Type::Double, .unit = "T"_L1},
                                           {.name = "y"_L1, .type = Type::Double, .unit = "T"_L1},
                                           {.name = "z"_L1, .type = Type::Double, .unit = "T"_L1}};
static constexpr Argument rotation[] = {{.name = "x"_L1, .type = Type::Double, .unit = "deg/s"_L1},
                                        {.name = "y"_L1, .type = Type::Double, .unit = "deg/s"_L1},
                                        {.name = "z"_L1, .type = Type::Double, .unit = "deg/s"_L1}};
static constexpr Argument illuminance[]
    = {{.name = "illuminance"_L1, .unit = "lx"_L1, .minimum = -1}};
static constexpr Argument calibrationLevel[] = {{.name = "level"_L1, .minimum = 0, .maximum = 3}};
static constexpr Argument reflectance[] = {{.name = "reflectance"_L1, .minimum = 0, .maximum = 10}};
static constexpr Argument tapDirection[] = {{.name = "direction"_L1, .minimum = -1, .maximum = 8}};

static constexpr Argument position[]
    = {{.name = "latitude"_L1,
        .type = Type::Double,
        .unit = "deg"_L1,
        .minimum = -90,
        .maximum = 90,
        .decimals = coordinateDecimals},
       {.name = "longitude"_L1,
        .type = Type::Double,
        .unit = "deg"_L1,
        .minimum = -180,
        .maximum = 180,
        .decimals = coordinateDecimals},
       {.name = "altitude"_L1, .type = Type::Double, .unit = "m"_L1, .decimals = altitudeDecimals}};
static constexpr Argument points[] = {{.name = "points"_L1, .type = Type::Points}};
static constexpr Argument pointIndex[] = {{.name = "index"_L1, .minimum = 0}};
static constexpr Argument looped[] = {{.name = "looped"_L1, .type = Type::Boolean}};
static constexpr Argument defaultInterval[]
    = {{.name = "useDefaultInterval"_L1, .type = Type::Boolean}};
static constexpr Argument speed[] = {{.name = "speed"_L1, .minimum = 1, .maximum = 5}};

static constexpr Argument camera[]
    = {{.name = "name"_L1, .type = Type::String},
       {.name = "width"_L1, .unit = "px"_L1, .minimum = 1, .mayBeMissing = true},
       {.name = "height"_L1, .unit = "px"_L1, .minimum = 1, .mayBeMissing = true},
       {.name = "framerate"_L1, .type = Type::String, .unit = "1/s"_L1, .mayBeMissing = true}};
static constexpr Argument videoFile[] = {{.name = "file"_L1, .type = Type::String}};

using Arguments = std::span<const Argument>;

static constexpr ServiceMethod sensorsMethods[] = {
    {&sensorsService, "enabled"_L1, sensorName, "whether the sensor is on"_L1},
    {&sensorsService, "enableSensor"_L1, sensorName},
    {&sensorsService, "disableSensor"_L1, sensorName},
    {&sensorsService, "setAccelerometerValues"_L1, acceleration},
    {&sensorsService, "setAccelerometerX"_L1, Arguments(acceleration).subspan(0, 1)},
    {&sensorsService, "setAccelerometerY"_L1, Arguments(acceleration).subspan(1, 1)},
    {&sensorsService, "setAccelerometerZ"_L1, Arguments(acceleration).subspan(2, 1)},
    {&sensorsService, "setMagnetometerValues"_L1, fluxDensity},
    {&sensorsService, "setMagnetometerX"_L1, Arguments(fluxDensity).subspan(0, 1)},
    {&sensorsService, "setMagnetometerY"_L1, Arguments(fluxDensity).subspan(1, 1)},
    {&sensorsService, "setMagnetometerZ"_L1, Arguments(fluxDensity).subspan(2, 1)},
    {&sensorsService, "setMagnetometerCalibrationLevel"_L1, calibrationLevel},
    {&sensorsService, "setGyroscopeValues"_L1, rotation},
    {&sensorsService, "setGyroscopeX"_L1, Arguments(rotation).subspan(0, 1)},
    {&sensorsService, "setGyroscopeY"_L1, Arguments(rotation).subspan(1, 1)},
    {&sensorsService, "setGyroscopeZ"_L1, Arguments(rotation).subspan(2, 1)},
    {&sensorsService, "setAlsValue"_L1, illuminance},
    {&sensorsService, "setProximitySensorValue"_L1, reflectance},
    {&sensorsService, "setTapSensorValue"_L1, tapDirection},
};

static constexpr ServiceMethod locationMethods[] = {
    {&locationService, "setPosition"_L1, position},
    {&locationService, "setLatitude"_L1, Arguments(position).subspan(0, 1)},
    {&locationService, "setLongitude"_L1, Arguments(position).subspan(1, 1)},
    {&locationService, "setAltitude"_L1, Arguments(position).subspan(2, 1)},
    {&locationService, "loadTrack"_L1, points},
    {&locationService, "startTrack"_L1},
    {&locationService, "pauseTrack"_L1},
    {&locationService, "stopTrack"_L1},
    {&locationService, "goToPositionOnTrack"_L1, pointIndex},
    {&locationService, "setTrackLooped"_L1, looped},
    {&locationService, "setTrackIntervalMode"_L1, defaultInterval},
    {&locationService, "setTrackSpeed"_L1, speed},
};

static constexpr ServiceMethod cameraMethods[] = {
    {&cameraService, "startCamera"_L1, camera},
    {&cameraService, "startVideo"_L1, videoFile},
    {&cameraService, "stop"_L1},
};

constexpr Service sensorsService{.name = "sensors"_L1,
                                 .dbusName = "org.vexa.SensorfwEmulationManagement"_L1,
                                 .dbusObject = "/org/vexa/SensorfwEmulationManagement"_L1,
                                 .methods = sensorsMethods};
constexpr Service locationService{.name = "location"_L1,
                                  .dbusName = "org.vexa.GeoclueEmulationManagement"_L1,
                                  .dbusObject = "/org/vexa/GeoclueEmulationManagement"_L1,
                                  .methods = locationMethods};
constexpr Service cameraService{
    .name = "camera"_L1, .dbusName = {}, .dbusObject = {}, .methods = cameraMethods};

static constexpr const Service *allServices[] = {&sensorsService, &locationService, &cameraService};

std::span<const Service *const> services()
{
    return allServices;
}

const Service *findService(QStringView name)
{
    const auto *const service = std::ranges::find_if(
        allServices, [&](const Service *candidate) { return candidate->name == name; });
    return service == std::end(allServices) ? nullptr : *service;
}

QString requestAddress(const Service &service)
{
    return u"system %1 %2 %1 "_s.arg(service.dbusName, service.dbusObject);
}

const ServiceMethod *findMethod(QStringView request, QStringView *arguments)
{
    static const std::array addresses{std::pair(&sensorsService, requestAddress(sensorsService)),
                                      std::pair(&locationService, requestAddress(locationService))};
    for (const auto &[service, address] : addresses) {
        if (!request.startsWith(address))
            continue;
        const QStringView call = request.sliced(address.size());
        const qsizetype nameEnd = call.indexOf(u' ');
        if (nameEnd < 0)
            return nullptr;
        *arguments = call.sliced(nameEnd + 1);
        return findMethod(*service, call.first(nameEnd));
    }
    return nullptr;
}

const ServiceMethod *findMethod(const Service &service, QStringView name)
{
    const auto method = std::ranges::find_if(
        service.methods, [&](const ServiceMethod &candidate) { return candidate.name == name; });
    return method == service.methods.end() ? nullptr : &*method;
}

} // namespace EmulationManagement::Internal
