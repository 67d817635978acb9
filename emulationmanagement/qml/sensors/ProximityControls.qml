pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import "../shared"

SensorControls {
    id: root

    readonly property double percentPerUnit: 100 / 1023 // the sensor has ten bits

    sensorName: "proximity"
    title: qsTr("Proximity Sensor")

    controls: Component {
        ColumnLayout {
            function clearFocus() {
                reflectance.textFieldFocus = false;
            }

            spacing: 4

            SliderWithTextField {
                id: reflectance

                Layout.fillWidth: true
                calculatedValue: value * root.percentPerUnit
                integer: true
                label: qsTr("Reflectance")
                maxValue: 10
                minValue: 0
                modelValue: root.sensorsManager.proximity.reflectance
                numberRoundingSize: 5
                showCalculatedValue: true
                stepSize: 1

                onSliderSubmited: value =>
                    root.sensorsManager.setProximitySensorReflectanceValue(Math.round(value))
            }

            RowLayout {
                spacing: 6

                Button {
                    text: qsTr("Near")
                    onClicked: root.sensorsManager.setProximitySensorNearValue(true)
                }

                Button {
                    text: qsTr("Far")
                    onClicked: root.sensorsManager.setProximitySensorNearValue(false)
                }
            }
        }
    }
}
