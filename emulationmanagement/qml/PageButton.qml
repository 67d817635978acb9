import QtQuick
import QtQuick.Controls

Button {
    id: root

    property bool active: false
    readonly property color highlightColor: themeHighlightColor // qmllint disable unqualified
    readonly property color backgroundColor: themeBackgroundColorNormal // qmllint disable unqualified

    // White text alone is unreadable on the pale highlight of a light theme.
    readonly property bool emphasized: active && highlightColor.hslLightness > 0.6

    anchors.left: parent?.left
    anchors.right: parent?.right
    font.bold: emphasized
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
        style: root.emphasized ? Text.Outline : Text.Normal
        styleColor: Qt.darker(root.highlightColor, 3)
        text: root.text
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        border.color: root.active ? root.palette.windowText : root.highlightColor
        border.width: root.visualFocus ? 1 : 0
        color: root.active ? root.highlightColor : root.backgroundColor
    }
}
