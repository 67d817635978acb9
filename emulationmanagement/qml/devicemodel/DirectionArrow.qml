import QtQuick
import QtQuick.Controls

import "../../js/devicemodel/device-drawing.js" as Drawing

// An arrow from the middle of its parent in a direction of space, as the camera of the drawing sees
// it. It ends with a ball that bears a letter.
Item {
    id: root

    required property list<real> direction // x, y and z in the world's axes, of length 1 or 0
    required property string letter
    required property color color

    readonly property list<real> seen: Drawing.seen(direction)
    readonly property real reach: (parent.width - ball.width) / 2
    readonly property real endX: seen[0] * reach
    readonly property real endY: -seen[1] * reach

    anchors.fill: parent
    visible: direction.some(part => part !== 0)
    z: seen[2] // what points to the viewer covers the others

    Rectangle {
        antialiasing: true
        color: root.color
        height: 2
        rotation: Math.atan2(root.endY, root.endX) * 180 / Math.PI
        transformOrigin: Item.Left
        width: Math.hypot(root.endX, root.endY)
        x: root.width / 2
        y: (root.height - height) / 2
    }

    Rectangle {
        id: ball

        color: root.color
        height: width
        radius: width / 2
        width: letterLabel.implicitHeight + 2
        x: (root.width - width) / 2 + root.endX
        y: (root.height - height) / 2 + root.endY

        Label {
            id: letterLabel

            anchors.centerIn: parent
            color: "white"
            font.bold: true
            text: root.letter
        }
    }
}
