import QtQuick
import QtQuick.Controls

// A button with a picture instead of a text. The picture has the text colour of the IDE's theme.
Button {
    id: root

    required property string name

    Accessible.name: name
    display: AbstractButton.IconOnly
    icon.color: palette.buttonText
    icon.height: 16
    icon.width: 16
    implicitWidth: 40
    opacity: enabled ? 1 : 0.4

    ToolTip {
        delay: 700
        text: root.name
        visible: root.hovered
        // Above the button, it would cover the track's progress.
        y: root.height + 3
    }
}
