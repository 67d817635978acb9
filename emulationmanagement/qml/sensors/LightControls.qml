pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

import org.plova 1.0

import "../shared"
import "../../js/sensors/light-levels.js" as LightLevels

SensorControls {
    id: root

    readonly property var levels: [
        { name: "Undefined", lux: AlsModel.Undefined },
        { name: "Dark", lux: AlsModel.Dark },
        { name: "Twilight", lux: AlsModel.Twilight },
        { name: "Light", lux: AlsModel.Light },
        { name: "Bright", lux: AlsModel.Bright },
        { name: "Sunny", lux: AlsModel.Sunny },
    ]

    sensorName: "als"
    title: qsTr("Light Sensor")

    controls: Component {
        ColumnLayout {
            function clearFocus() {
                lux.textFieldFocus = false;
            }

            spacing: 2

            SliderWithTextField {
                id: lux

                Layout.fillWidth: true
                accessibleName: root.title
                integer: true
                maxValue: 3000
                minValue: -1
                modelValue: root.sensorsManager.als.lux
                stepSize: 1
                valueUnits: qsTr("lx")

                onSliderSubmited: value => root.sensorsManager.setAlsLuxValue(Math.round(value))
            }

            LabeledComboBox {
                id: level

                // Below the first level, the choice stays as it was.
                function followLux() {
                    const last = LightLevels.indexOf(root.levels, root.sensorsManager.als.lux);
                    if (last >= 0)
                        index = last;
                }

                Layout.fillWidth: true
                label: qsTr("Light level")
                model: root.levels
                textRole: "name"

                onChosen: index => root.sensorsManager.setAlsLightLevel(root.levels[index].lux)

                Component.onCompleted: followLux()

                Connections {
                    target: root.sensorsManager.als

                    function onLuxChanged() {
                        level.followLux();
                    }
                }
            }
        }
    }
}
