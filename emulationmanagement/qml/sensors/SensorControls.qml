import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import org.plova 1.0

import "../../js/sensors/sensor-states.js" as States

// A titled frame around the controls of one sensor, shown while the emulated device has the sensor
// and enabled while the sensor is switched on.
GroupBox {
    id: root

    // The sensor's key in the maps of availability and enabled states.
    required property string sensorName
    required property Component controls
    property alias controlsEnabled: root.enabled
    readonly property SensorsEmulationManager sensorsManager: sensorsEmulationManager // qmllint disable unqualified

    function clearFocus() {
        loader.item?.clearFocus?.(); // qmllint disable missing-property
    }

    Layout.alignment: Qt.AlignTop
    Layout.fillWidth: true
    enabled: States.isEnabled(sensorsManager, sensorName)
    visible: States.isAvailable(sensorsManager, sensorName)

    Loader {
        id: loader

        anchors.left: parent.left
        anchors.right: parent.right
        sourceComponent: root.controls
    }
}
