import QtQuick
import QtQuick.Controls

import "../../js/devicemodel/smartphone-model-page-logic.js" as Logic

// The area that shows the device, in which the mouse turns and moves it.
Rectangle {
    id: root

    required property bool rotationMode
    required property list<real> rotationState // Euler angles in degrees
    required property var modelConfig
    required property var magneticField // in the world's axes
    required property list<real> displacement // x, y and z in units of the move sliders
    required property double moveMinValue
    required property double moveMaxValue
    required property bool keyboardFocus // arrow keys turn or move the device

    readonly property double dragLimit: 2.1 // a drag may go a little beyond the sliders' range
    readonly property double wheelStep: 0.2
    readonly property int wheelNotch: 120 // eighths of a degree, the unit of wheel events

    property point basePoint // where the part of a drag begins that has had no effect yet
    readonly property point originPoint: Logic.originPoint(mouseArea.width, mouseArea.height,
                                                           displacement)

    // What the hint explains is known once the user has done it.
    property bool hasTurned: false
    property bool hasMoved: false

    signal pressed
    // The user turned the device to Euler angles in degrees.
    signal turned(rotation: list<real>)
    // The user moved the device.
    signal moved(displacement: list<real>)

    function dragTo(pointer: point) {
        if (rotationMode)
            dragRotation(pointer);
        else
            dragPosition(pointer);
    }

    function dragPosition(pointer: point) {
        const [x, y, z] = displacement;
        const newX = x + (pointer.x - basePoint.x) / (mouseArea.width / 6);
        const newY = y - (pointer.y - basePoint.y) / (mouseArea.height / 4);
        const xFits = Math.abs(newX) <= dragLimit;
        const yFits = Math.abs(newY) <= dragLimit;
        basePoint = Qt.point(xFits ? pointer.x : basePoint.x, yFits ? pointer.y : basePoint.y);
        moved([xFits ? newX : x, yFits ? newY : y, z]);
    }

    function dragRotation(pointer: point) {
        const [x, y, z] = rotationState;
        const turned = Logic.turnedAboutWorldAxes([x, y, z + model.cameraAngle],
                                                  Logic.dragTurn(originPoint, basePoint, pointer));
        basePoint = pointer;
        root.turned([turned[0], turned[1], turned[2] - model.cameraAngle]);
    }

    border.color: keyboardFocus ? palette.windowText : palette.mid
    color: "transparent"

    onDisplacementChanged: hasMoved = hasMoved || displacement.some(value => value !== 0)
    onRotationStateChanged: hasTurned = hasTurned || rotationState.some(angle => angle !== 0)

    SmartphoneModel {
        id: model

        anchors.fill: parent
        anchors.margins: root.border.width
        displacement: root.displacement
        modelConfig: root.modelConfig
        rotationState: root.rotationState
    }

    Rectangle { // keeps the diagrams readable in front of the device
        anchors.fill: sensorAxes
        anchors.margins: -6
        color: themeBackgroundColorNormal // qmllint disable unqualified
        opacity: 0.6
        radius: 6
        visible: sensorAxes.visible
    }

    SensorAxes {
        id: sensorAxes

        anchors.left: parent.left
        anchors.margins: 10
        anchors.top: parent.top
        // beside the device if there is room, otherwise above it
        columns: 0.3 * root.width < diagramSize + 2 * anchors.margins ? 2 : 1
        magneticField: root.magneticField
        rotationState: root.rotationState
        visible: model.drawn
    }

    MouseArea {
        id: mouseArea

        property int wheelAngle: 0 // since the last whole notch

        anchors.fill: model

        onDoubleClicked: {
            if (root.rotationMode)
                root.turned([0, 0, 0]);
        }
        onPositionChanged: mouse => root.dragTo(Qt.point(mouse.x, mouse.y))
        onPressed: mouse => {
            root.basePoint = Qt.point(mouse.x, mouse.y);
            root.pressed();
        }
        onWheel: wheel => {
            wheelAngle += wheel.angleDelta.y;
            const notches = Math.trunc(wheelAngle / root.wheelNotch);
            wheelAngle -= notches * root.wheelNotch;
            const [x, y, z] = root.displacement;
            root.moved([x, y, Logic.clamped(z + notches * root.wheelStep, root.moveMinValue,
                                            root.moveMaxValue)]);
        }
    }

    Column {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: 12
        anchors.right: parent.right
        spacing: 6

        Label {
            text: model.problem
            textFormat: Text.PlainText
            visible: text !== ""
            width: parent.width
            wrapMode: Text.Wrap
        }

        Label {
            readonly property bool isKnown: root.rotationMode ? root.hasTurned : root.hasMoved

            horizontalAlignment: Text.AlignHCenter
            opacity: model.drawn && isKnown ? 0 : 0.7
            text: root.rotationMode
                  ? qsTr("Drag to turn, double-click to set upright. Arrow keys turn about X and Z, with Shift about Y. Hold Ctrl to move.")
                  : qsTr("Drag or press arrow keys to move along X and Y, roll the wheel for Z.")
            width: parent.width
            wrapMode: Text.Wrap

            Behavior on opacity {
                NumberAnimation {
                    duration: 400
                }
            }
        }
    }
}
