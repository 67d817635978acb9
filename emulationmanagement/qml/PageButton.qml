import QtQuick
import QtQuick.Controls

Button {
    id: root

    property bool active: false
    readonly property color highlightColor: themeHighlightColor // qmllint disable unqualified
    readonly property color backgroundColor: themeBackgroundColorNormal // qmllint disable unqualified

    anchors.left: parent?.left
    anchors.right: parent?.right
    leftPadding: 15
    rightPadding: 15

    contentItem: Text {
        color: root.active ? "white" : root.palette.windowText
        elide: Text.ElideRight
        font: root.font
        fontSizeMode: Text.HorizontalFit
        horizontalAlignment: Text.AlignLeft
        minimumPixelSize: Math.ceil(0.8 * root.font.pixelSize)
        minimumPointSize: Math.max(1, Math.floor(0.8 * root.font.pointSize))
        opacity: root.enabled ? 1.0 : 0.3
        // white alone cannot be read on the pale highlight of a light theme
        style: root.active && root.highlightColor.hslLightness > 0.6 ? Text.Outline : Text.Normal
        styleColor: Qt.darker(root.highlightColor, 2)
        text: root.text
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        border.color: root.active ? root.palette.windowText : root.highlightColor
        border.width: root.visualFocus ? 1 : 0
        color: root.active ? root.highlightColor : root.backgroundColor
    }
}
