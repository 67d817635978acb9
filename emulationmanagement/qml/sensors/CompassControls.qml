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

            spacing: 2

            SliderWithTextField {
                id: azimuth

                Layout.fillWidth: true
                integer: true
                label: qsTr("Azimuth")
                labelWidth: calibrationLevel.labelTextWidth
                maxValue: 359
                minValue: 0
                modelValue: root.sensorsManager.compass.azimuth
                stepSize: 1

                onSliderSubmited: value => root.sensorsManager.setCompassAzimuth(Math.round(value))
            }

            CalibrationLevelSlider {
                id: calibrationLevel

                modelValue: root.sensorsManager.compass.calibrationLevel

                onSliderSubmited: value =>
                    root.sensorsManager.setCompassCalibrationLevel(Math.round(value))
            }
        }
    }
}
