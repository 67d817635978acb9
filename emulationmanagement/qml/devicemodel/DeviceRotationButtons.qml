pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls

import "../../js/devicemodel/smartphone-model-page-logic.js" as Logic

// Buttons for common attitudes.
GroupBox {
    id: root

    readonly property bool darkTheme: darkUserInterface // qmllint disable unqualified

    signal chosen(rotation: list<real>)

    title: qsTr("Device rotation")

    Row {
        spacing: 6

        Repeater {
            model: Logic.presets.length

            delegate: Button {
                required property int index
                readonly property list<real> rotation: Logic.presets[index]

                ToolTip.delay: 500
                ToolTip.text: text
                ToolTip.visible: hovered
                display: AbstractButton.IconOnly
                focusPolicy: Qt.TabFocus // after a click, arrow keys still turn the device
                icon.color: "transparent" // keeps the colours of the picture
                icon.height: 32
                icon.source: "qrc:/emulationmanagement/icons/phone_%1%2.png"
                             .arg(index + 1).arg(root.darkTheme ? "_light" : "")
                icon.width: 32
                implicitWidth: implicitContentWidth + leftPadding + rightPadding
                padding: 4
                text: qsTr("X %1°, Y %2°, Z %3°").arg(rotation[0]).arg(rotation[1])
                                                 .arg(rotation[2])

                onClicked: root.chosen(rotation)
            }
        }
    }
}
