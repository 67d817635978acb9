pragma ComponentBehavior: Bound

import QtQuick

SensorControls {
    id: root

    sensorName: "gyroscope"
    title: qsTr("Gyroscope")

    controls: Component {
        AxesControls {
            maxValue: 25.0
            minValue: -25.0
            model: root.sensorsManager.gyroscope
            valueUnits: qsTr("deg/s")

            onXSubmited: value => root.sensorsManager.setGyroscopeX(value)
            onYSubmited: value => root.sensorsManager.setGyroscopeY(value)
            onZSubmited: value => root.sensorsManager.setGyroscopeZ(value)
        }
    }
}
