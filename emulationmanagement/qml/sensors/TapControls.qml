pragma ComponentBehavior: Bound

import QtQuick

import "../shared"

SensorControls {
    id: root

    sensorName: "tap"
    title: qsTr("Tap Sensor")

    controls: Component {
        LabeledComboBox {
            // the first entry, Undefined, is -1
            index: root.sensorsManager.tap.tapDirection + 1
            label: qsTr("Direction")
            model: ["Undefined", "X_Both", "Y_Both", "Z_Both", "X_Pos", "X_Neg", "Z_Neg", "Z_Pos",
                    "Y_Pos", "Y_Neg"]

            onChosen: index => root.sensorsManager.setTapSensorValue(index - 1)
        }
    }
}
