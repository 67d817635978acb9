pragma ComponentBehavior: Bound

import QtQuick

import org.plova 1.0

// The field around the device has no sensor of its own: it comes and goes with the magnetometer.
SensorControls {
    id: root

    required property SensorsEmulationManager sensorsManager

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
