pragma ComponentBehavior: Bound

import QtQuick

import org.plova 1.0

import "devicemodel"
import "shared"
import "../js/devicemodel/smartphone-model-page-logic.js" as Logic

EmulationPage {
    id: root

    readonly property string locale: "en_US"
    readonly property double stepSize: 0.01
    readonly property int numberRoundingSize: 3
    readonly property bool integer: false
    readonly property double rotMinValue: -180 // degrees
    readonly property double rotMaxValue: 180
    readonly property double moveMinValue: -2
    readonly property double moveMaxValue: 2

    readonly property SensorsEmulationManager sensorsManager: sensorsEmulationManager // qmllint disable unqualified
    readonly property var modelConfig: smartphone3DModelConfig // qmllint disable unqualified
    property bool rotationMode: true
    property bool controlModifierPressed: false
    readonly property alias motion: motion

    function rotate(rotation: list<real>) {
        motion.rotation = rotation;
        motion.updateAttitudeValues();
    }

    // Continues rotations beyond half a turn from the other end.
    function resetSlidersValue() {
        const beyond = motion.rotation.map(Logic.isBeyondHalfTurn);
        motion.wrapped = motion.wrapped.map((before, i) => before || beyond[i]);
        motion.rotation = motion.rotation.map(
            (angle, i) => beyond[i] ? Logic.otherEnd(angle) : angle);
    }

    // Turns or moves the device by an arrow key. Returns false for another key.
    function pressArrow(key: int, shift: bool): bool {
        const steps = rotationMode ? Logic.arrowTurn(key, shift) : Logic.arrowMove(key);
        if (!steps)
            return false;
        if (rotationMode) {
            motion.rotation = motion.rotation.map((value, i) => value + steps[i]);
        } else {
            motion.displacement = motion.displacement.map((value, i) => Logic.stepped(
                value, steps[i] * stepSize, moveMinValue, moveMaxValue));
        }
        return true;
    }

    Accessible.description: qsTr("Arrow keys turn it, with Ctrl they move it")
    Accessible.name: qsTr("Device")
    Accessible.role: Accessible.Graphic
    activeFocusOnTab: true
    contentFile: Qt.resolvedUrl("devicemodel/SmartphoneModelContent.qml")

    Component.onCompleted: motion.updateAttitudeValues()
    Keys.onPressed: event => {
        if (!activeFocus)
            return; // the key belongs to a slider or a field
        resetSlidersValue();
        controlModifierPressed = event.key === Qt.Key_Control
                                 || (event.modifiers & Qt.ControlModifier) !== 0;
        event.accepted = pressArrow(event.key, (event.modifiers & Qt.ShiftModifier) !== 0);
        if (rotationMode)
            motion.updateAttitudeValues();
    }
    Keys.onReleased: event => {
        const wasMoved = !rotationMode;
        if (event.key === Qt.Key_Control || event.modifiers === Qt.NoModifier)
            controlModifierPressed = false;
        if (wasMoved && rotationMode)
            motion.updateAttitudeValues(); // without the acceleration of the move
    }
    onActiveChanged: {
        if (active)
            forceActiveFocus();
        else
            controlModifierPressed = false;
    }
    onShownChanged: {
        if (!shown && active)
            motion.comeToRest(); // the timer stops when the window is hidden
    }
    onControlModifierPressedChanged: rotationMode = !rotationMode
    // Hiding the sliders of the other mode removes the focus from them.
    onRotationModeChanged: {
        if (active)
            forceActiveFocus();
    }
    // An inactive window is not told that Ctrl is released.
    Window.onActiveChanged: {
        if (!Window.active)
            controlModifierPressed = false;
    }

    Connections {
        target: root.sensorsManager

        function onSuspendedChanged() {
            if (root.shown && !root.sensorsManager.suspended)
                motion.comeToRest(); // the timer was stopped
        }
    }

    DeviceMotion {
        id: motion

        active: root.active
        rotationMode: root.rotationMode
        sensorsManager: root.sensorsManager
    }

    Timer {
        interval: motion.timerInterval * 1000
        repeat: true
        running: root.shown && !root.sensorsManager.suspended

        onTriggered: motion.sample()
    }
}
