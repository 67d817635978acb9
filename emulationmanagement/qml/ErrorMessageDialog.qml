import QtQuick.Dialogs

import "../js/plain-text.js" as PlainText

// Shows a text of the emulator or of a file as what it is.
MessageDialog {
    title: qsTr("Error")
    buttons: MessageDialog.Ok

    // The label of the dialog, which takes anything with tags for rich text, is out of reach.
    onTextChanged: text = PlainText.shown(text)
}
