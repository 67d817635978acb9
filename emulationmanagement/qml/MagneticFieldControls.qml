pragma ComponentBehavior: Bound

import QtQuick

// The field around the device has no sensor of its own: it comes and goes with the magnetometer.
SensorControls {
    id: root

    required property var sensorsManager

    sensorName: "magnetometer"
    title: qsTr("Magnetic Field")

    controls: Component {
        AxesControls {
            maxValue: 100.0
            minValue: -100.0
            model: root.sensorsManager.magneticField
            valueUnits: qsTr("μT")

            onXSubmited: value => root.sensorsManager.setMagneticFieldX(value)
            onYSubmited: value => root.sensorsManager.setMagneticFieldY(value)
            onZSubmited: value => root.sensorsManager.setMagneticFieldZ(value)
        }
    }
}
