import QtQuick

import org.plova 1.0

import "../../js/devicemodel/smartphone-model-page-logic.js" as Logic
import "../../js/sensors/sensor-states.js" as States

// The motion of the device. It computes the readings that the motion causes and sends them to the
// emulator. Lists of three numbers are x, y and z.
QtObject {
    id: root

    required property SensorsEmulationManager sensorsManager
    required property bool active
    required property bool rotationMode // turned by the user, otherwise moved
    property list<real> rotation: [0, 0, 0] // degrees
    property list<real> displacement: [0, 0, 0] // in units of the move sliders

    readonly property double gravityAccelEarth: sensorsManager.accelerometer.gravityAccelEarth
    readonly property double timerInterval: 0.1 // s
    readonly property double phoneSizeCoefficient: 0.06 // m in a unit of the move sliders
    // From m/s² to the unit of the accelerometer's calls.
    readonly property double accGravityCoef:
        sensorsManager.accelerometer.unitsPerG / gravityAccelEarth
    readonly property double microToWholeCoef: sensorsManager.magnetometer.teslaPerMicrotesla
    readonly property double sentLimit: 3000 // the emulator accepts no larger values

    readonly property list<real> position: displacement.map(
        value => value * phoneSizeCoefficient) // m
    property list<real> previousPosition: [0, 0, 0] // at the last sample
    property list<real> earlierPosition: [0, 0, 0] // at the sample before it
    property list<real> initialSpeed: [0, 0, 0] // m/s
    property list<real> previousRotation: [0, 0, 0] // at the last sample
    property list<real> rotationFrequency: [0, 0, 0] // turns per second
    // Whether each angle was continued from the other end since the last sample.
    property list<bool> wrapped: [false, false, false]

    // The last readings.
    property list<real> accelerometer: [0, 0, 0] // m/s²
    property list<real> gyroscope: [0, 0, 0] // degrees per second
    property list<real> magnetometer: [0, 0, 0] // μT
    // The accelerometer's reading in the unit of its calls.
    readonly property list<real> wireAccelerometer: accelerometer.map(
        value => Logic.wireAcceleration(value, accGravityCoef))

    function updateAccelerometerValues() {
        if (!active || !States.isAvailable(sensorsManager, "accelerometer"))
            return;
        const acceleration = rotationMode ? [0, 0, 0] : position.map((value, i) =>
            Logic.linearAcceleration(value, previousPosition[i], initialSpeed[i], timerInterval));
        accelerometer = Logic.accelerometerReading(rotation, gravityAccelEarth, acceleration);
        sensorsManager.setAccelerometerValues(...wireAccelerometer.map(
            value => Logic.clamped(value, -sentLimit, sentLimit)));
    }

    function updateGyroscopeValues() {
        if (!States.isEnabled(sensorsManager, "gyroscope"))
            return;
        gyroscope = Logic.gyroscopeReading(rotation, rotationFrequency).map(
            value => Logic.clamped(value, -sentLimit, sentLimit));
        sensorsManager.setGyroscopeValues(...gyroscope);
    }

    function updateMagnetometerValues() {
        if (!rotationMode || !States.isEnabled(sensorsManager, "magnetometer"))
            return;
        const field = sensorsManager.magneticField;
        magnetometer = Logic.magnetometerReading(rotation, [field.x, field.y, field.z]);
        sensorsManager.setMagnetometerValues(
            ...magnetometer.map(value => value * microToWholeCoef));
    }

    // Sends the readings that depend on the attitude alone.
    function updateAttitudeValues() {
        updateAccelerometerValues();
        updateMagnetometerValues();
    }

    // Sends the readings that the change since the last sample causes. The page calls it once in
    // every timerInterval.
    function sample() {
        if (rotationMode) {
            rotationFrequency = Logic.rotationFrequencies(rotation, previousRotation, wrapped,
                                                          timerInterval);
            wrapped = [false, false, false];
            updateGyroscopeValues();
            previousRotation = rotation;
        } else {
            initialSpeed = previousPosition.map(
                (value, i) => (value - earlierPosition[i]) / timerInterval);
            updateAccelerometerValues();
            earlierPosition = previousPosition;
            previousPosition = position;
        }
    }

    // Sends the readings of a device that neither turns nor moves.
    function comeToRest() {
        previousRotation = rotation;
        wrapped = [false, false, false];
        earlierPosition = position;
        previousPosition = position;
        sample();
    }

    onActiveChanged: {
        if (!active)
            return;
        updateAccelerometerValues();
        gyroscope = [0, 0, 0];
        if (States.isAvailable(sensorsManager, "gyroscope"))
            sensorsManager.setGyroscopeValues(...gyroscope);
        updateMagnetometerValues();
    }
}
