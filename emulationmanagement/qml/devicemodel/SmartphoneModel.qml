import QtQuick

// The place of the drawn device. Nothing is drawn yet.
Item {
    // Euler angles about x, y and z in degrees: those of the sliders, but with the camera's angle
    // added to z. Empty while there is no drawn device that the mouse could turn.
    property list<real> rotationState
    property double cameraAngle: 0 // degrees
}
