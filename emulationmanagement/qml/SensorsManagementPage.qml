pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts

import org.plova 1.0

import "shared"
import "../js/sensors/sensor-dependencies.js" as Dependencies

EmulationPage {
    id: root

    readonly property SensorsEmulationManager sensorsManager: sensorsEmulationManager // qmllint disable unqualified
    readonly property var titles: ({
        accelerometer: qsTr("Accelerometer"),
        compass: qsTr("Compass"),
        orientation: qsTr("Orientation Sensor"),
        magnetometer: qsTr("Magnetometer"),
        gyroscope: qsTr("Gyroscope"),
        als: qsTr("Light Sensor"),
        proximity: qsTr("Proximity Sensor"),
        tap: qsTr("Tap Sensor"),
    })
    // as the boxes stand; the keys of an object that compiled code made are sorted
    readonly property list<string> sensorNames: [
        "accelerometer", "compass", "orientation", "magnetometer", "gyroscope", "als", "proximity",
        "tap"]
    // What the user ticked and has not applied, by sensor name.
    property var pendingStates: ({})
    // What the boxes show, by sensor name.
    readonly property var checkedStates: {
        const states = {};
        for (const name of sensorNames)
            states[name] = isAvailable(name) && (pendingStates[name] ?? isEnabled(name));
        return states;
    }

    signal sensorSwitched(sensorName: string)

    function isAvailable(sensorName: string): bool {
        return sensorsManager.sensorsAvailability[sensorName] ?? false;
    }

    function isEnabled(sensorName: string): bool {
        return isAvailable(sensorName)
            && (sensorsManager.sensorsEnabledStates[sensorName] ?? false);
    }

    function reset() {
        pendingStates = {};
    }

    function apply(states: var) {
        for (const name of sensorNames) {
            const on = states[name] && isAvailable(name);
            if (on)
                sensorsManager.enableSensor(name);
            else
                sensorsManager.disableSensor(name);
            sensorSwitched(name);
            sensorsManager.setSensorEnabled(name, on);
        }
        reset();
    }

    function hasChanges(): bool {
        return sensorNames.some(name => checkedStates[name] !== isEnabled(name));
    }

    function exitPage(continuation: var) {
        if (!hasChanges()) {
            reset();
            continuation();
            return;
        }
        warningDialog.continuation = continuation;
        warningDialog.states = checkedStates;
        warningDialog.show();
    }

    content: ColumnLayout {
        spacing: 12

        PageScrollView {
            Layout.fillWidth: true
            Layout.fillHeight: true

            Column {
                spacing: 4

                Repeater {
                    model: root.sensorNames

                    delegate: CheckBox {
                        required property string modelData

                        checked: root.checkedStates[modelData] ?? false
                        text: root.titles[modelData]
                        visible: root.isAvailable(modelData)

                        onToggled: root.pendingStates = Dependencies.statesAfterSwitch(
                            root.pendingStates, modelData, checked)
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
                onClicked: root.apply(root.checkedStates)
            }

            Button {
                text: qsTr("Reset")
                onClicked: root.reset()
            }
        }
    }

    WarningDialog {
        id: warningDialog

        property var continuation
        // What was ticked when the question was asked; the emulator's answers go on arriving.
        property var states

        standardButtons: MessageDialog.Discard | MessageDialog.Apply // qmllint disable missing-type
        text: qsTr("The sensor configuration has been changed. Apply or discard changes?")

        onAccepted: {
            root.apply(states);
            continuation(); // qmllint disable use-proper-function
        }
        onRejected: {
            root.reset();
            continuation(); // qmllint disable use-proper-function
        }
    }
}
