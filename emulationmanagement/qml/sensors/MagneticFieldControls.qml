pragma ComponentBehavior: Bound

import QtQuick

// The ambient field has no sensor of its own. Its frame has the magnetometer's name, so that both
// are shown, hidden, enabled and disabled together.
SensorControls {
    id: root

    sensorName: "magnetometer"
    title: qsTr("Magnetic Field")

    controls: Component {
        AxesControls {
            maxValue: 100.0
            minValue: -100.0
            model: root.sensorsManager.magneticField
            valueUnits: qsTr("μT")

            onXSubmitted: value => root.sensorsManager.setMagneticFieldX(value)
            onYSubmitted: value => root.sensorsManager.setMagneticFieldY(value)
            onZSubmitted: value => root.sensorsManager.setMagneticFieldZ(value)
        }
    }
}
