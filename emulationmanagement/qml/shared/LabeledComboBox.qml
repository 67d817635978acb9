import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A combo box with a label before it.
RowLayout {
    id: root

    property string label: ""
    property alias model: comboBox.model
    property alias textRole: comboBox.textRole
    // The entry that is shown. The user's choice only emits chosen(); the index follows when the
    // property that it is bound to changes.
    property int index: -1

    signal chosen(index: int)

    spacing: 6

    Label {
        text: root.label
    }

    ChoiceBox {
        id: comboBox

        Accessible.name: root.label
        Layout.fillWidth: true

        onChosen: index => root.chosen(index)

        Binding on currentIndex {
            value: root.index
        }
    }
}
