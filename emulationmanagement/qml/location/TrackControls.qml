import QtQuick
import QtQuick.Controls

import org.plova 1.0

import "../shared"

// Buttons that play a track, and the options of its playback.
Flow {
    id: root

    required property GPSEmulationManager gpsManager
    property bool playing: false
    property bool stopped: true
    // Whether the track has no intervals of its own.
    property bool onlyDefaultInterval: false

    signal playClicked
    signal pauseClicked
    signal stopClicked

    spacing: 6

    TrackButton {
        enabled: !root.playing
        icon.source: "qrc:/emulationmanagement/play.png"
        name: qsTr("Play")

        onClicked: root.playClicked()
    }

    TrackButton {
        enabled: root.playing
        icon.source: "qrc:/emulationmanagement/pause.png"
        name: qsTr("Pause")

        onClicked: root.pauseClicked()
    }

    TrackButton {
        enabled: !root.stopped
        icon.source: "qrc:/emulationmanagement/stop.png"
        name: qsTr("Stop")

        onClicked: root.stopClicked()
    }

    ChoiceBox {
        Accessible.name: qsTr("Speed")
        implicitWidth: 80
        textRole: "key"
        valueRole: "value"
        model: ListModel {
            ListElement {
                key: "1x"
                value: 1
            }
            ListElement {
                key: "2x"
                value: 2
            }
            ListElement {
                key: "3x"
                value: 3
            }
            ListElement {
                key: "4x"
                value: 4
            }
            ListElement {
                key: "5x"
                value: 5
            }
        }

        onChosen: index => root.gpsManager.setTrackSpeed(valueAt(index))

        Binding on currentIndex {
            value: root.gpsManager.trackSpeed - 1
        }
    }

    CheckBox {
        checked: !root.gpsManager.useDefaultInterval
        enabled: !root.onlyDefaultInterval
        text: qsTr("Use own track speed")

        onClicked: root.gpsManager.setTrackIntervalMode(!checked)
    }

    CheckBox {
        checked: root.gpsManager.trackLooped
        text: qsTr("Loop track")

        onClicked: root.gpsManager.setTrackLooped(checked)
    }
}
