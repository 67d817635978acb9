import QtQuick
import QtQuick.Controls

// A titled frame around the controls of one sensor.
GroupBox {
    id: root

    // The sensor's key in the maps of availability and enabled states.
    required property string sensorName
    required property Component controls
    property alias controlsEnabled: root.enabled

    function clearFocus() {
        loader.item?.clearFocus?.(); // qmllint disable missing-property
    }

    Loader {
        id: loader

        anchors.left: parent.left
        anchors.right: parent.right
        sourceComponent: root.controls
    }
}
