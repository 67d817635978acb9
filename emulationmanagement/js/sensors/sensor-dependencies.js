.pragma library

// Sensors that are computed from others go on and off with them.
const switchedOnWith = {
    compass: ["accelerometer", "magnetometer"],
    orientation: ["accelerometer"],
};
const switchedOffWith = {
    accelerometer: ["compass", "orientation"],
    magnetometer: ["compass"],
};

// The states by sensor name after one sensor was switched on or off by hand.
function statesAfterSwitch(states, sensorName, on) {
    const others = (on ? switchedOnWith : switchedOffWith)[sensorName] ?? [];
    const result = Object.assign({}, states);
    for (const name of [sensorName, ...others])
        result[name] = on;
    return result;
}
