pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

import "../shared"

SensorControls {
    id: root

    sensorName: "compass"
    title: qsTr("Compass")

    controls: Component {
        ColumnLayout {
            function clearFocus() {
                azimuth.textFieldFocus = false;
                calibrationLevel.textFieldFocus = false;
            }

            spacing: 0

            SliderWithTextField {
                id: azimuth

                Layout.fillWidth: true
                integer: true
                label: qsTr("Azimuth")
                labelWidth: calibrationLevelMetrics.width
                maxValue: 359
                minValue: 0
                stepSize: 1

                onSliderSubmited: value => root.sensorsManager.setCompassAzimuth(Math.round(value))

                Binding on value {
                    value: root.sensorsManager.compass.azimuth
                }
            }

            CalibrationLevelSlider {
                id: calibrationLevel

                Layout.fillWidth: true
                modelValue: root.sensorsManager.compass.calibrationLevel

                onSliderSubmited: value =>
                    root.sensorsManager.setCompassCalibrationLevel(Math.round(value))
            }

            TextMetrics {
                id: calibrationLevelMetrics

                text: calibrationLevel.label
            }
        }
    }
}
