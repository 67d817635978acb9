import QtQuick
import QtQuick.Controls

import "../../js/devicemodel/smartphone-model-page-logic.js" as Logic

// The area that shows the device, in which the mouse turns and moves it.
Rectangle {
    id: root

    required property bool rotationMode
    required property list<real> displacement // x, y and z in units of the move sliders
    required property double moveMinValue
    required property double moveMaxValue
    required property bool keyboardFocus // arrow keys turn or move the device
    property alias model: model

    readonly property double dragLimit: 2.1 // a drag may go a little beyond the sliders' range
    readonly property double wheelStep: 0.2
    readonly property int wheelNotch: 120 // eighths of a degree, the unit of wheel events

    property point basePoint // where the part of a drag begins that has had no effect yet
    readonly property point originPoint: Logic.originPoint(mouseArea.width, mouseArea.height,
                                                           displacement)

    signal pressed
    // The user turned the drawn device to Euler angles in degrees.
    signal turned(rotation: list<real>)
    // The user moved the device.
    signal moved(displacement: list<real>)

    function dragTo(pointer: point) {
        if (!rotationMode)
            dragPosition(pointer);
        else if (model.rotationState.length > 0)
            dragRotation(pointer);
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
        model.rotationState = Logic.turnedAboutWorldAxes(
            model.rotationState, Logic.dragTurn(originPoint, basePoint, pointer));
        basePoint = pointer;
        const [x, y, z] = model.rotationState;
        turned([x, y, z - model.cameraAngle]);
    }

    border.color: keyboardFocus ? palette.windowText : palette.mid
    color: "transparent"

    SmartphoneModel {
        id: model

        anchors.fill: parent
    }

    MouseArea {
        id: mouseArea

        property int wheelAngle: 0 // since the last whole notch

        anchors.fill: model

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

    Label {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: 12
        anchors.right: parent.right
        horizontalAlignment: Text.AlignHCenter
        opacity: 0.7
        text: root.rotationMode
              ? qsTr("Arrow keys turn about X and Z, with Shift about Y. Hold Ctrl to move.")
              : qsTr("Drag or press arrow keys to move along X and Y, roll the wheel for Z.")
        wrapMode: Text.Wrap
    }
}
