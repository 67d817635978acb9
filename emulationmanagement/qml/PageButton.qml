import QtQuick
import QtQuick.Controls

import "../js/colors.js" as Colors

Button {
    id: root

    property bool active: false
    // The text is made smaller by this factor, so that it fits.
    property real textScale: 1
    readonly property real textWidth: unscaled.implicitWidth
    property color highlightColor: themeHighlightColor // qmllint disable unqualified
    readonly property color backgroundColor: themeBackgroundColorNormal // qmllint disable unqualified

    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: active
    anchors.left: parent?.left
    anchors.right: parent?.right
    bottomPadding: 6
    leftPadding: 15
    rightPadding: 15
    topPadding: 6

    Accessible.onPressAction: clicked()

    contentItem: Text {
        // White is unreadable on the pale highlight of a light theme.
        color: root.active ? Colors.readableOn(root.highlightColor, [
                                 "white", root.palette.highlightedText, root.palette.windowText,
                             ].map(color => Qt.color(color)))
                           : root.palette.windowText
        elide: Text.ElideRight
        font {
            family: root.font.family
            pixelSize: Math.floor(unscaled.fontInfo.pixelSize * root.textScale)
            weight: root.font.weight
        }
        horizontalAlignment: Text.AlignLeft
        opacity: root.enabled ? 1.0 : 0.3
        text: root.text
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        border.color: root.palette.windowText
        border.width: root.visualFocus ? 1 : 0
        color: root.active ? root.highlightColor : root.backgroundColor
    }

    Text {
        id: unscaled

        font: root.font
        text: root.text
        visible: false
    }
}
