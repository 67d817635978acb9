pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts

import org.plova 1.0

import "location"
import "shared"
import "../js/location/nmea-parsing.js" as Nmea
import "../js/location/text-file.js" as TextFile
import "../js/location/track-rows.js" as TrackRows

// Sets a position, or loads a track and plays it.
EmulationPage {
    id: root

    required property ErrorMessageDialog errorDialog
    required property MessageDialog messageDialog

    readonly property GPSEmulationManager gpsManager: gpsEmulationManager // qmllint disable unqualified
    readonly property var locale: Qt.locale("en_US")
    readonly property double latitudeMinValue: -90
    readonly property double latitudeMaxValue: 90
    readonly property double longitudeMinValue: -180
    readonly property double longitudeMaxValue: 180
    readonly property double altitudeMinValue: -1000
    readonly property double altitudeMaxValue: 10000
    readonly property int latLongRoundingSize: Nmea.latLongRoundingSize
    readonly property int altRoundingSize: Nmea.altRoundingSize
    readonly property alias defaultInterval: player.defaultInterval
    readonly property alias lastRow: player.lastRow
    property alias actualTrackPoints: player.actualTrackPoints
    // The track has no times to play it by.
    property bool onlyDefaultInterval: false
    readonly property alias trackStopped: player.stopped
    property string nmeaFileUrl: ""
    // Bytes. Points take some forty times as much memory as in their file.
    readonly property int maximumFileSize: 100e6
    // A track must fit into one upload: its text, at most 46 characters a point, into
    // maxRequestBytes of emulator/relay.cpp and, as replies repeat it, into maxReplySize of
    // link/remotedbusinvokerservice.h; its points, 40 bytes each, into the 64 MiB of a D-Bus array.
    readonly property int maximumPoints: 1.4e6
    // The emulator was told to stop after an error and has not said "OK" since. It may be the stop
    // that it refuses.
    property bool stoppedAfterError: false
    // How many files have been read or begun.
    property int fileRequests: 0

    function openFile(url: url) {
        const request = ++fileRequests;
        nmeaFileUrl = url;
        const size = gpsManager.fileSize(url);
        if (size < 0) {
            showTrack(null);
        } else if (size > maximumFileSize) {
            refuseTrack(qsTr("NMEA file is larger than %1 MB").arg(maximumFileSize / 1e6));
        } else {
            TextFile.read(url, text => {
                // another file may have been chosen in the meantime
                if (request === fileRequests)
                    showTrack(text);
            });
        }
    }

    function showTrack(text: var) {
        let points;
        try {
            if (text === null)
                throw new Error(qsTr("NMEA file cannot be read"));
            points = Nmea.loadNmeaLog(text, maximumPoints);
        } catch (error) {
            refuseTrack(error.incorrectLine > 0
                ? error.message + qsTr(", line: %1").arg(error.incorrectLine) : error.message);
            return;
        }
        const rows = TrackRows.tableRows(points, locale, latLongRoundingSize, altRoundingSize);
        // Rows have no field of that name, so that any track may be played at its own speed.
        onlyDefaultInterval = Nmea.trackHasPointsWithoutDateTime(rows);
        if (onlyDefaultInterval)
            gpsManager.setTrackIntervalMode(true);
        player.setTrack(rows, TrackRows.trackRecord(rows, points));
    }

    // Playback is stopped first: the buttons are disabled while the table is empty.
    function refuseTrack(message: string) {
        if (!player.stopped)
            player.stop();
        player.clear();
        errorDialog.show(message);
    }

    content: PageScrollView {
        id: scrollView

        ColumnLayout {
            width: Math.max(scrollView.availableWidth, implicitWidth)
            height: Math.max(scrollView.availableHeight, implicitHeight)
            spacing: 8

            CurrentPosition {
                Layout.fillWidth: true
                altitudeDecimals: root.altRoundingSize
                coordinateDecimals: root.latLongRoundingSize
                numberLocale: root.locale
                position: root.gpsManager.currentPosition
            }

            CoordinateControls {
                Layout.fillWidth: true
                altitudeDecimals: root.altRoundingSize
                altitudeMaxValue: root.altitudeMaxValue
                altitudeMinValue: root.altitudeMinValue
                coordinateDecimals: root.latLongRoundingSize
                gpsManager: root.gpsManager
                latitudeMaxValue: root.latitudeMaxValue
                latitudeMinValue: root.latitudeMinValue
                longitudeMaxValue: root.longitudeMaxValue
                longitudeMinValue: root.longitudeMinValue
                numberLocale: root.locale

                onPositionSubmitted: (latitude, longitude, altitude) => {
                    if (player.playing)
                        player.pause();
                    root.gpsManager.setPosition(latitude, longitude, altitude);
                }
            }

            GroupBox {
                Layout.fillHeight: true
                Layout.fillWidth: true
                title: qsTr("Track")

                ColumnLayout {
                    anchors.fill: parent
                    spacing: 6

                    RowLayout {
                        spacing: 6

                        Label {
                            text: qsTr("Track file")
                        }

                        TextField {
                            Accessible.name: qsTr("Track file")
                            Layout.fillWidth: true
                            readOnly: true
                            selectByMouse: true
                            text: root.nmeaFileUrl
                        }

                        Button {
                            Accessible.name: qsTr("Open NMEA File")
                            implicitWidth: 40
                            text: "…"

                            onClicked: fileDialog.open()
                        }
                    }

                    TrackProgress {
                        id: progress

                        Layout.fillWidth: true
                        currentIndex: root.gpsManager.currentPositionIndex
                        enabled: track.rowCount > 0
                        locale: root.locale
                        rowCount: track.rowCount

                        onMoved: index => {
                            player.currentRow = index;
                            root.gpsManager.goToPositionOnTrack(index);
                        }
                        onPressedChanged: {
                            if (pressed)
                                player.hold();
                            else
                                player.release();
                        }
                    }

                    TrackControls {
                        Layout.fillWidth: true
                        enabled: track.rowCount > 0
                        gpsManager: root.gpsManager
                        onlyDefaultInterval: root.onlyDefaultInterval
                        playing: player.playing
                        stopped: player.stopped

                        onPauseClicked: player.pause()
                        onPlayClicked: player.start()
                        onStopClicked: player.stop()
                    }

                    TrackTable {
                        Layout.fillHeight: true
                        Layout.fillWidth: true
                        Layout.minimumHeight: 60

                        centred: player.playing || progress.pressed
                        currentRow: player.currentRow
                        track: track

                        onRowChosen: row => player.chooseRow(row)
                    }
                }
            }
        }
    }

    onShownChanged: {
        if (!shown)
            fileDialog.close();
    }
    onOnlyDefaultIntervalChanged: {
        if (!onlyDefaultInterval)
            return;
        messageDialog.text = qsTr("The loaded NMEA file has no temporal information. "
                                  + "Thus you cannot play it at its own speed.");
        messageDialog.open();
    }

    TrackModel {
        id: track
    }

    TrackPlayer {
        id: player

        gpsManager: root.gpsManager
        track: track
    }

    Connections {
        target: root.gpsManager

        function onReplyFromEmulatorReceived(reply: string) {
            if (reply === "OK") {
                root.stoppedAfterError = false;
                return;
            }
            if (!root.stoppedAfterError) {
                root.stoppedAfterError = true;
                player.stop();
            }
            root.nmeaFileUrl = "";
            player.clear();
        }
    }

    FileDialog {
        id: fileDialog

        fileMode: FileDialog.OpenFile
        nameFilters: [qsTr("NMEA files (*.nmea)")]
        title: qsTr("Open NMEA File")

        onAccepted: root.openFile(selectedFile)
    }
}
