import QtQuick
import QtQuick.Controls

import ".."

// The text of an error message. It scrolls if it is higher than the window.
ScrollView {
    id: root

    required property ErrorMessageDialog dialog

    contentWidth: availableWidth
    implicitHeight: label.implicitHeight

    Label {
        id: label

        Accessible.role: Accessible.AlertMessage
        text: root.dialog.text
        textFormat: Text.PlainText
        width: parent.width
        wrapMode: Text.Wrap
    }
}
