pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

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
    property bool rotationMode: true
    property bool controlModifierPressed: false

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

    activeFocusOnTab: true
    content: RowLayout {
        spacing: 12

        SmartphoneModelArea {
            Layout.fillHeight: true
            Layout.fillWidth: true
            Layout.minimumWidth: 160
            Layout.preferredWidth: Layout.minimumWidth
            displacement: motion.displacement
            keyboardFocus: root.activeFocus
            moveMaxValue: root.moveMaxValue
            moveMinValue: root.moveMinValue
            rotationMode: root.rotationMode

            onMoved: displacement => motion.displacement = displacement
            onPressed: root.forceActiveFocus()
            onTurned: rotation => {
                root.resetSlidersValue();
                root.rotate(rotation);
            }
        }

        PageScrollView {
            id: controls

            Layout.fillHeight: true
            Layout.fillWidth: true
            Layout.maximumWidth: Layout.preferredWidth
            Layout.preferredWidth: 400

            ColumnLayout {
                spacing: 12
                width: Math.max(controls.availableWidth, implicitWidth)

                Row {
                    spacing: 12

                    RadioButton {
                        checked: root.rotationMode
                        focusPolicy: Qt.TabFocus // after a click, keys still move the device
                        text: qsTr("Rotation")

                        onToggled: root.rotationMode = checked
                    }

                    RadioButton {
                        checked: !root.rotationMode
                        focusPolicy: Qt.TabFocus
                        text: qsTr("Move")

                        onToggled: root.rotationMode = !checked
                    }
                }

                StackLayout {
                    Layout.fillHeight: false
                    currentIndex: root.rotationMode ? 0 : 1

                    Sliders {
                        labels: [qsTr("X-Rot"), qsTr("Y-Rot"), qsTr("Z-Rot")]
                        maxValue: root.rotMaxValue
                        minValue: root.rotMinValue
                        values: motion.rotation

                        onSubmitted: rotation => root.rotate(rotation)
                    }

                    Sliders {
                        labels: [qsTr("X"), qsTr("Y"), qsTr("Z")]
                        maxValue: root.moveMaxValue
                        minValue: root.moveMinValue
                        values: motion.displacement

                        onSubmitted: displacement => motion.displacement = displacement
                    }
                }

                DeviceRotationButtons {
                    Layout.fillWidth: true

                    onChosen: rotation => root.rotate(rotation)
                }

                ResultingValues {
                    Layout.fillWidth: true
                    decimals: root.numberRoundingSize
                    motion: motion
                    numberLocale: root.locale
                }
            }
        }
    }

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

    component Sliders: AxesSliders {
        // The user chose other values, of which one is new.
        signal submitted(values: list<real>)

        integer: root.integer
        numberRoundingSize: root.numberRoundingSize
        stepSize: root.stepSize

        onXSubmitted: x => submitted([x, values[1], values[2]])
        onYSubmitted: y => submitted([values[0], y, values[2]])
        onZSubmitted: z => submitted([values[0], values[1], z])
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
        running: root.shown

        onTriggered: motion.sample()
    }
}
