pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls

import "../../js/numbers.js" as Numbers
import "../../js/sensors/sensor-states.js" as States

// The readings of the emulated sensors, one line for each sensor that the device has.
GroupBox {
    id: root

    required property DeviceMotion motion
    required property string numberLocale
    required property int decimals

    readonly property list<string> sensorNames: ["accelerometer", "gyroscope", "magnetometer"]

    function formatted(value: double): string {
        return Numbers.fixed(value, decimals, Qt.locale(numberLocale));
    }

    component ResultLabel: Label {
        required property string sensorName
        required property string title
        required property list<real> values // x, y and z

        enabled: States.isEnabled(root.motion.sensorsManager, sensorName)
        text: title + ": " + "%1 %2 %3".arg(root.formatted(values[0]))
                                       .arg(root.formatted(values[1]))
                                       .arg(root.formatted(values[2]))
        visible: States.isAvailable(root.motion.sensorsManager, sensorName)
    }

    title: qsTr("Resulting values")
    visible: sensorNames.some(name => States.isAvailable(motion.sensorsManager, name))

    Column {
        spacing: 6

        ResultLabel {
            sensorName: "accelerometer"
            title: qsTr("Accelerometer (m/s\u00b2)")
            values: root.motion.wireAccelerometer.map(
                value => value / root.motion.accGravityCoef)
        }

        ResultLabel {
            sensorName: "gyroscope"
            title: qsTr("Gyroscope (°/s)")
            values: root.motion.gyroscope
        }

        ResultLabel {
            sensorName: "magnetometer"
            title: qsTr("Magnetometer (μT)")
            values: root.motion.magnetometer
        }
    }
}
