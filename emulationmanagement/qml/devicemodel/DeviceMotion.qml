import QtQuick

import org.plova 1.0

import "../../js/devicemodel/smartphone-model-page-logic.js" as Logic
import "../../js/sensors/sensor-states.js" as States

// The device that is turned and moved: computes what it reads, and sends it. Triples are arrays of
// x, y and z.
QtObject {
    id: root

    required property SensorsEmulationManager sensorsManager
    required property bool active
    // Turned, or moved.
    required property bool rotationMode
    property var rotation: [0, 0, 0] // degrees
    property var displacement: [0, 0, 0] // in units of the move sliders

    readonly property double gravityAccelEarth: sensorsManager.accelerometer.gravityAccelEarth
    readonly property double timerInterval: 0.1 // s
    readonly property double phoneSizeCoefficient: 0.06 // m in a unit of the move sliders
    readonly property double accGravityCoef: 1000 / 9.80665 // thousandths of g in 1 m/s²
    readonly property double microToWholeCoef: 0.000001
    readonly property double sentLimit: 3000 // the emulator takes no more over D-Bus

    readonly property var position: displacement.map(value => value * phoneSizeCoefficient) // m
    property var previousPosition: [0, 0, 0] // at the last sample
    property var earlierPosition: [0, 0, 0] // at the sample before it
    property var initialSpeed: [0, 0, 0] // m/s
    property var previousRotation: [0, 0, 0] // at the last sample
    property var rotationFrequency: [0, 0, 0] // turns per second
    // The angles that were continued from the other end since the last sample.
    property var wrapped: [false, false, false]

    // The last readings.
    property var accelerometer: [0, 0, 0] // m/s²
    property var gyroscope: [0, 0, 0] // degrees per second
    property var magnetometer: [0, 0, 0] // μT
    // As the emulator can be told it.
    readonly property var wireAccelerometer: accelerometer.map(
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

    // Sends what depends on the attitude alone.
    function updateAttitudeValues() {
        updateAccelerometerValues();
        updateMagnetometerValues();
    }

    // Sends what the change since the last sample makes, once in every timerInterval.
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

    // Ends what a turn or a move adds to the readings, which stand from then on.
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
