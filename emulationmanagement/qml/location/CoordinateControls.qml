import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import org.plova 1.0

// Fields for a position, which are sent one by one or together.
GroupBox {
    id: root

    required property GPSEmulationManager gpsManager
    required property int coordinateDecimals
    required property int altitudeDecimals
    required property double latitudeMinValue
    required property double latitudeMaxValue
    required property double longitudeMinValue
    required property double longitudeMaxValue
    required property double altitudeMinValue
    required property double altitudeMaxValue

    signal positionSubmitted(latitude: double, longitude: double, altitude: double)

    title: qsTr("Coordinate")

    RowLayout {
        anchors.fill: parent
        spacing: 12

        CoordinateField {
            id: latitudeField

            decimals: root.coordinateDecimals
            label: qsTr("Latitude")
            maxValue: root.latitudeMaxValue
            minValue: root.latitudeMinValue

            onSubmitted: value => root.gpsManager.setLatitude(value)
        }

        CoordinateField {
            id: longitudeField

            decimals: root.coordinateDecimals
            label: qsTr("Longitude")
            maxValue: root.longitudeMaxValue
            minValue: root.longitudeMinValue

            onSubmitted: value => root.gpsManager.setLongitude(value)
        }

        CoordinateField {
            id: altitudeField

            decimals: root.altitudeDecimals
            label: qsTr("Altitude")
            maxValue: root.altitudeMaxValue
            minValue: root.altitudeMinValue

            onSubmitted: value => root.gpsManager.setAltitude(value)
        }

        Button {
            text: qsTr("Set")

            onClicked: root.positionSubmitted(latitudeField.value(), longitudeField.value(),
                                              altitudeField.value())
        }
    }
}
