pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls

import "../../js/devicemodel/smartphone-model-page-logic.js" as Logic

// Buttons for the attitudes that are needed most.
GroupBox {
    id: root

    readonly property bool darkTheme: darkUserInterface // qmllint disable unqualified

    signal chosen(rotation: var)

    title: qsTr("Device rotation")

    Row {
        spacing: 6

        Repeater {
            model: Logic.presets

            delegate: Button {
                required property int index
                required property var modelData

                ToolTip.delay: 500
                ToolTip.text: text
                ToolTip.visible: hovered
                display: AbstractButton.IconOnly
                focusPolicy: Qt.TabFocus // arrow keys go on turning the device
                icon.color: "transparent" // as it is drawn
                icon.height: 32
                icon.source: "qrc:/emulationmanagement/icons/phone_%1%2.png"
                             .arg(index + 1).arg(root.darkTheme ? "_light" : "")
                icon.width: 32
                implicitWidth: implicitContentWidth + leftPadding + rightPadding
                padding: 4
                text: qsTr("X %1°, Y %2°, Z %3°").arg(modelData[0]).arg(modelData[1])
                                                 .arg(modelData[2])

                onClicked: root.chosen(modelData)
            }
        }
    }
}
