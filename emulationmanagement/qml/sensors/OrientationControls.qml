pragma ComponentBehavior: Bound

import QtQuick

import "../shared"

SensorControls {
    id: root

    sensorName: "orientation"
    title: qsTr("Orientation Sensor")

    controls: Component {
        LabeledComboBox {
            // the value before TopUp means that the orientation is not known
            index: root.sensorsManager.orientation.orientation - 1 // qmllint disable unresolved-type
            label: qsTr("Orientation")
            model: ["TopUp", "TopDown", "LeftUp", "RightUp", "FaceUp", "FaceDown"]

            onChosen: index => root.sensorsManager.setOrientation(index + 1)
        }
    }
}
