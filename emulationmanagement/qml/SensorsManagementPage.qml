pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Dialogs

import org.plova 1.0

import "shared"
import "../js/sensors/sensor-states.js" as States

EmulationPage {
    id: root

    readonly property SensorsEmulationManager sensorsManager: sensorsEmulationManager // qmllint disable unqualified
    // In the order of the boxes.
    readonly property var sensors: [
        { name: "accelerometer", title: qsTr("Accelerometer") },
        { name: "compass", title: qsTr("Compass") },
        { name: "orientation", title: qsTr("Orientation Sensor") },
        { name: "magnetometer", title: qsTr("Magnetometer") },
        { name: "gyroscope", title: qsTr("Gyroscope") },
        { name: "als", title: qsTr("Light Sensor") },
        { name: "proximity", title: qsTr("Proximity Sensor") },
        { name: "tap", title: qsTr("Tap Sensor") },
    ]
    // The states that the user chose and has not applied yet, by sensor name.
    property var pendingStates: ({})
    // The states that the boxes show, by sensor name.
    readonly property var checkedStates: {
        const states = {};
        for (const {name} of sensors)
            states[name] = States.isAvailable(sensorsManager, name)
                && (pendingStates[name] ?? States.isEnabled(sensorsManager, name));
        return states;
    }

    signal sensorSwitched(sensorName: string)

    function reset() {
        pendingStates = {};
    }

    function apply(states: var) {
        for (const {name} of sensors) {
            const on = states[name] && States.isAvailable(sensorsManager, name);
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
        return sensors.some(
            ({name}) => checkedStates[name] !== States.isEnabled(sensorsManager, name));
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

    contentFile: Qt.resolvedUrl("sensors/SensorsManagementContent.qml")

    WarningDialog {
        id: warningDialog

        property var continuation
        // The boxes as they were when the question was asked: replies from the emulator can change
        // them meanwhile.
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
