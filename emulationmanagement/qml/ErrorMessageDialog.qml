import QtQuick.Dialogs

MessageDialog {
    title: qsTr("Error")
    buttons: MessageDialog.Ok
}
