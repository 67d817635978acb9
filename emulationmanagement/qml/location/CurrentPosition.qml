import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// Where the emulated device is.
GroupBox {
    id: root

    required property var position
    required property var numberLocale
    required property int coordinateDecimals
    required property int altitudeDecimals

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

            Accessible.name: label.text
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
            value: root.position.latitude.toLocaleString(
                root.numberLocale, "f", root.coordinateDecimals)
        }

        PositionValue {
            Layout.fillWidth: true
            label: qsTr("Longitude")
            value: root.position.longitude.toLocaleString(
                root.numberLocale, "f", root.coordinateDecimals)
        }

        PositionValue {
            Layout.fillWidth: true
            label: qsTr("Altitude")
            value: root.position.altitude.toLocaleString(
                root.numberLocale, "f", root.altitudeDecimals)
        }
    }
}
