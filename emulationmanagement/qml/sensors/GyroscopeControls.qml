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

            onXSubmitted: value => root.sensorsManager.setGyroscopeX(value)
            onYSubmitted: value => root.sensorsManager.setGyroscopeY(value)
            onZSubmitted: value => root.sensorsManager.setGyroscopeZ(value)
        }
    }
}
