pragma ComponentBehavior: Bound
pragma Translator: SensorsManagementPage

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import ".."
import "../shared"
import "../../js/sensors/sensor-dependencies.js" as Dependencies
import "../../js/sensors/sensor-states.js" as States

// The boxes of the sensors and their buttons.
ColumnLayout {
    id: root

    required property SensorsManagementPage page

    spacing: 12

    PageScrollView {
        Layout.fillWidth: true
        Layout.fillHeight: true

        Column {
            spacing: 4

            Repeater {
                model: root.page.sensors

                delegate: CheckBox {
                    required property var modelData // an entry of sensors

                    checked: root.page.checkedStates[modelData.name] ?? false
                    text: modelData.title
                    visible: States.isAvailable(root.page.sensorsManager, modelData.name)

                    onToggled: root.page.pendingStates = Dependencies.statesAfterSwitch(
                        root.page.pendingStates, modelData.name, checked)
                }
            }
        }
    }

    Label {
        Layout.fillWidth: true
        text: qsTr("After applying changes, all applications retrieving data from sensors must be restarted.")
        wrapMode: Text.Wrap
    }

    RowLayout {
        spacing: 6

        Button {
            text: qsTr("Apply")
            onClicked: root.page.apply(root.page.checkedStates)
        }

        Button {
            text: qsTr("Reset")
            onClicked: root.page.reset()
        }
    }
}
