import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import org.plova 1.0

// Shows which track file is loaded, lets the user choose another one, and shows how far it has been
// read if that takes long.
RowLayout {
    id: root

    required property TrackReader reader
    property string fileUrl: ""

    signal openClicked

    spacing: 6

    Label {
        text: qsTr("Track file")
    }

    TextField {
        Accessible.name: qsTr("Track file")
        Layout.fillWidth: true
        readOnly: true
        selectByMouse: true
        text: root.fileUrl
    }

    ProgressBar {
        Accessible.name: qsTr("Reading the track file")
        Layout.fillWidth: true
        value: root.reader.progress
        visible: root.reader.takingLong
    }

    Button {
        text: qsTr("Cancel")
        visible: root.reader.takingLong

        onClicked: root.reader.cancel()
    }

    Button {
        Accessible.name: qsTr("Open NMEA File")
        implicitWidth: 40
        text: "…"

        onClicked: root.openClicked()
    }
}
