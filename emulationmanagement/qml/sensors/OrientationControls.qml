pragma ComponentBehavior: Bound

import QtQuick

import "../shared"

SensorControls {
    id: root

    sensorName: "orientation"
    title: qsTr("Orientation Sensor")

    controls: Component {
        LabeledComboBox {
            // TopUp is 1; 0 stands for an unknown orientation and selects no entry
            index: root.sensorsManager.orientation.orientation - 1 // qmllint disable unresolved-type
            label: qsTr("Orientation")
            model: ["TopUp", "TopDown", "LeftUp", "RightUp", "FaceUp", "FaceDown"]

            onChosen: index => root.sensorsManager.setOrientation(index + 1)
        }
    }
}
