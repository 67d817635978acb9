import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import org.plova 1.0

import "../../js/location/number-texts.js" as NumberTexts

// Shows the position of the emulated device.
GroupBox {
    id: root

    required property GPSEmulationManager gpsManager

    title: qsTr("Current Position")

    component PositionValue: RowLayout {
        property alias label: label.text
        property alias value: value.text

        spacing: 6

        Label {
            id: label
        }

        Label {
            id: value

            Accessible.name: label.text + " " + text
            Layout.fillWidth: true
            elide: Text.ElideRight
        }
    }

    RowLayout {
        anchors.fill: parent
        spacing: 12
        uniformCellSizes: true

        PositionValue {
            Layout.fillWidth: true
            label: qsTr("Latitude")
            value: NumberTexts.degreesText(root.gpsManager.currentPosition.latitude)
        }

        PositionValue {
            Layout.fillWidth: true
            label: qsTr("Longitude")
            value: NumberTexts.degreesText(root.gpsManager.currentPosition.longitude)
        }

        PositionValue {
            Layout.fillWidth: true
            label: qsTr("Altitude")
            value: NumberTexts.metresText(root.gpsManager.currentPosition.altitude)
        }
    }
}
