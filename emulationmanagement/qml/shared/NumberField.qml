pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls

import org.plova 1.0

// A field for a number. It shows that it refuses a key or a paste: without that, the user would not
// notice that a typed "1,5" became "15".
TextField {
    id: root

    property alias minValue: validator.bottom
    property alias maxValue: validator.top
    property alias decimals: validator.decimals
    property bool integer: decimals === 0
    // True for some seconds after a refusal. An accepted key does not end it, because the "5" of
    // "1,5" follows the refused comma at once.
    readonly property alias refused: refusal.running

    readonly property string range: integer
        ? qsTr("A whole number from %1 to %2").arg(minValue).arg(maxValue)
        : qsTr("A number from %1 to %2 with at most %3 decimals after a point")
              .arg(minValue).arg(maxValue).arg(decimals)

    Accessible.description: range
    horizontalAlignment: TextInput.AlignRight
    selectByMouse: true
    validator: TextFieldDoubleValidator {
        id: validator

        notation: DoubleValidator.StandardNotation

        onRefused: {
            if (root.activeFocus)
                refusal.restart();
        }
    }

    onActiveFocusChanged: {
        if (activeFocus)
            selectAll();
    }

    Timer {
        id: refusal

        interval: 4000
    }

    Rectangle {
        anchors.fill: parent
        border.color: "#e53935" // readable in both themes
        border.width: 2
        color: "transparent"
        radius: 2
        visible: root.refused
    }

    Loader {
        active: root.refused && root.visible
        sourceComponent: Label {
            readonly property point place: root.mapToItem(parent, 0, 0)

            Accessible.role: Accessible.ToolTip
            background: Rectangle {
                border.color: palette.toolTipText
                color: palette.toolTipBase
            }
            color: palette.toolTipText
            padding: 6
            // a ToolTip would take clicks on the controls that it covers
            parent: root.Window.contentItem
            text: root.range
            x: Math.max(0, place.x + root.width - width)
            y: place.y < height + 3 ? place.y + root.height + 3 : place.y - height - 3
            z: 1
        }
    }
}
