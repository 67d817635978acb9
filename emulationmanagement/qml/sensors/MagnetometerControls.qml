pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

SensorControls {
    id: root

    sensorName: "magnetometer"
    title: qsTr("Magnetometer")

    controls: Component {
        ColumnLayout {
            function clearFocus() {
                axes.clearFocus();
                calibrationLevel.textFieldFocus = false;
            }

            spacing: 0

            AxesControls {
                id: axes

                labelWidth: calibrationLevelMetrics.width
                maxValue: 65.0
                minValue: -65.0
                model: root.sensorsManager.magnetometer
                resultValueMultiplier: root.sensorsManager.magnetometer.teslaPerMicrotesla
                valueUnits: qsTr("μT")

                onXSubmited: value => root.sensorsManager.setMagnetometerX(value)
                onYSubmited: value => root.sensorsManager.setMagnetometerY(value)
                onZSubmited: value => root.sensorsManager.setMagnetometerZ(value)
            }

            CalibrationLevelSlider {
                id: calibrationLevel

                Layout.fillWidth: true
                modelValue: root.sensorsManager.magnetometer.calibrationLevel

                onSliderSubmited: value =>
                    root.sensorsManager.setMagnetometerCalibrationLevel(Math.round(value))
            }

            TextMetrics {
                id: calibrationLevelMetrics

                text: calibrationLevel.label
            }
        }
    }
}
