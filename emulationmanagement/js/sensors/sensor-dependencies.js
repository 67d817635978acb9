.pragma library

// The sensors from which others are computed. A computed sensor is on only while these are on.
const sources = {
    compass: ["accelerometer", "magnetometer"],
    orientation: ["accelerometer"],
};

// The states, by sensor name, after the user has switched one sensor on or off.
function statesAfterSwitch(states, sensorName, on) {
    const others = on ? sources[sensorName] ?? []
                      : Object.keys(sources).filter(name => sources[name].includes(sensorName));
    const result = Object.assign({}, states);
    for (const name of [sensorName, ...others])
        result[name] = on;
    return result;
}
