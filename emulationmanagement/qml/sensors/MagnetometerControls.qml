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

            spacing: 2

            AxesControls {
                id: axes

                labelWidth: calibrationLevel.labelTextWidth
                maxValue: 65.0
                minValue: -65.0
                model: root.sensorsManager.magnetometer
                resultValueMultiplier: root.sensorsManager.magnetometer.teslaPerMicrotesla
                valueUnits: qsTr("μT")

                onXSubmitted: value => root.sensorsManager.setMagnetometerX(value)
                onYSubmitted: value => root.sensorsManager.setMagnetometerY(value)
                onZSubmitted: value => root.sensorsManager.setMagnetometerZ(value)
            }

            CalibrationLevelSlider {
                id: calibrationLevel

                modelValue: root.sensorsManager.magnetometer.calibrationLevel

                onSliderSubmited: value =>
                    root.sensorsManager.setMagnetometerCalibrationLevel(Math.round(value))
            }
        }
    }
}
