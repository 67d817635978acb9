pragma ComponentBehavior: Bound

import QtQuick

SensorControls {
    id: root

    readonly property double gravityAccelEarth: sensorsManager.accelerometer.gravityAccelEarth
    readonly property int unitsPerG: sensorsManager.accelerometer.unitsPerG

    sensorName: "accelerometer"
    title: qsTr("Accelerometer")

    controls: Component {
        AxesControls {
            calculatedValueFactor: root.gravityAccelEarth / root.unitsPerG
            calculatedValueUnits: qsTr("m/s²")
            maxValue: 3.0
            minValue: -3.0
            model: root.sensorsManager.accelerometer
            resultValueMultiplier: root.unitsPerG
            showCalculatedValue: true
            valueUnits: qsTr("g")

            // Floating-point error puts 1.001 g times 1000 below 1001: rounding keeps it.
            onXSubmitted: value => root.sensorsManager.setAccelerometerX(Math.round(value))
            onYSubmitted: value => root.sensorsManager.setAccelerometerY(Math.round(value))
            onZSubmitted: value => root.sensorsManager.setAccelerometerZ(Math.round(value))
        }
    }
}
