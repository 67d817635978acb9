pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

import "../shared"

// For a sensor that the emulator does not have yet. It makes no calls, and no page shows it.
SensorControls {
    id: root

    component Axis: SliderWithTextField {
        Layout.fillWidth: true
        integer: true
        maxValue: 180
        minValue: -179
        stepSize: 1
    }

    sensorName: "rotation"
    title: qsTr("Rotation Sensor")

    controls: Component {
        ColumnLayout {
            function clearFocus() {
                for (const axis of [xAxis, yAxis, zAxis])
                    axis.textFieldFocus = false;
            }

            spacing: 2

            Axis {
                id: xAxis

                label: qsTr("X")
                maxValue: 90
                minValue: -90
            }

            Axis {
                id: yAxis

                label: qsTr("Y")
            }

            Axis {
                id: zAxis

                label: qsTr("Z")
            }
        }
    }
}
