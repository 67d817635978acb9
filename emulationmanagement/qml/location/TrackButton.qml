import QtQuick
import QtQuick.Controls

// A button with a picture instead of a text. The picture has the text colour of the IDE's theme.
Button {
    id: root

    required property string name

    Accessible.name: name
    ToolTip.delay: 700
    ToolTip.text: name
    ToolTip.visible: hovered
    display: AbstractButton.IconOnly
    icon.color: palette.buttonText
    icon.height: 16
    icon.width: 16
    implicitWidth: 40
    opacity: enabled ? 1 : 0.4
}
