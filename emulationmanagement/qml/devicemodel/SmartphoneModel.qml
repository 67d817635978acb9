import QtQuick

// The place of the drawn device. Nothing is drawn yet.
Item {
    // Euler angles in degrees, as the sliders have them but for the camera's; null while there is
    // no drawn device that could be turned by the mouse.
    property var rotationState: null
    // What the camera adds to the rotation about z, in degrees.
    property double cameraAngle: 0
}
