import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A choice with a label before it.
RowLayout {
    id: root

    property string label: ""
    property alias model: comboBox.model
    property alias textRole: comboBox.textRole
    // What is shown; the user's choice changes it through the model that it is bound to.
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
