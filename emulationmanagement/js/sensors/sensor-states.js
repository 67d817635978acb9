.pragma library

// Whether the emulated device has the sensor.
function isAvailable(sensorsManager, sensorName) {
    return sensorsManager.sensorsAvailability[sensorName] ?? false;
}

// Whether the emulated device has the sensor and the sensor is switched on.
function isEnabled(sensorsManager, sensorName) {
    return isAvailable(sensorsManager, sensorName)
        && (sensorsManager.sensorsEnabledStates[sensorName] ?? false);
}
