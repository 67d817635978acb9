pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls

// What the emulated sensors read, a line for each that the device has.
GroupBox {
    id: root

    required property DeviceMotion motion
    required property string numberLocale
    required property int decimals

    readonly property var sensorNames: ["accelerometer", "gyroscope", "magnetometer"]

    function formatted(value: double): string {
        const scale = Math.pow(10, decimals);
        const rounded = Math.round(value * scale) / scale + 0; // no "-0.000"
        return rounded.toLocaleString(Qt.locale(numberLocale), "f", decimals);
    }

    component ResultLabel: Label {
        required property string sensorName
        required property string title
        required property var values

        enabled: root.motion.isEnabled(sensorName)
        text: title + ": " + "%1 %2 %3".arg(root.formatted(values[0]))
                                       .arg(root.formatted(values[1]))
                                       .arg(root.formatted(values[2]))
        visible: root.motion.isAvailable(sensorName)
    }

    title: qsTr("Resulting values")
    visible: sensorNames.some(name => motion.isAvailable(name))

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
