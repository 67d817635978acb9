pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts

import org.plova 1.0

import "../js/sensor-dependencies.js" as Dependencies

EmulationPage {
    id: root

    readonly property var sensorsManager: sensorsEmulationManager // qmllint disable unqualified
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
    // What the boxes show, by sensor name.
    property var checkedStates: ({})

    // A sensor was switched; before that it was on or not.
    signal sensorSwitched(sensorName: string, wasEnabled: bool)

    function reset() {
        const states = {};
        for (const name of sensorNames)
            states[name] = sensorsManager.sensorsEnabledStates[name] ?? false;
        checkedStates = states;
    }

    function apply() {
        const states = checkedStates;
        for (const name of sensorNames) {
            if (states[name])
                sensorsManager.enableSensor(name);
            else
                sensorsManager.disableSensor(name);
            sensorSwitched(name, sensorsManager.sensorsEnabledStates[name] ?? false);
            sensorsManager.setSensorEnabled(name, states[name]);
        }
        reset();
    }

    function hasChanges(): bool {
        return sensorNames.some(
            name => checkedStates[name] !== (sensorsManager.sensorsEnabledStates[name] ?? false));
    }

    function exitPage(continuation: var) {
        if (!hasChanges()) {
            continuation();
            return;
        }
        warningDialog.continuation = continuation;
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
                        visible: root.sensorsManager.sensorsAvailability[modelData] ?? false

                        onToggled: root.checkedStates = Dependencies.statesAfterSwitch(
                            root.checkedStates, modelData, checked)
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
                onClicked: root.apply()
            }

            Button {
                text: qsTr("Reset")
                onClicked: root.reset()
            }
        }
    }

    Component.onCompleted: reset()

    Connections {
        target: root.sensorsManager

        function onSensorsAvailabilityChanged() {
            root.reset();
        }

        function onSensorsEnabledStatesChanged() {
            root.reset();
        }
    }

    WarningDialog {
        id: warningDialog

        property var continuation

        standardButtons: MessageDialog.Discard | MessageDialog.Apply // qmllint disable missing-type
        text: qsTr("The sensor configuration has been changed. Apply or discard changes?")

        onAccepted: {
            root.apply();
            continuation(); // qmllint disable use-proper-function
        }
        onRejected: {
            root.reset();
            continuation(); // qmllint disable use-proper-function
        }
    }
}
