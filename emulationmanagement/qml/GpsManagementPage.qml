pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts

import "../js/nmea-parsing.js" as Nmea
import "../js/text-file.js" as TextFile
import "../js/track-rows.js" as TrackRows

// Sets a position, or loads a track and plays it.
EmulationPage {
    id: root

    required property ErrorMessageDialog errorDialog
    required property MessageDialog messageDialog

    readonly property var gpsManager: gpsEmulationManager // qmllint disable unqualified
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
    readonly property int lastRow: track.rowCount - 1
    property alias actualTrackPoints: player.actualTrackPoints
    // The track has no times to play it by.
    property bool onlyDefaultInterval: false
    property bool trackStopped: true
    property string nmeaFileUrl: ""
    // Bytes. Points take some forty times as much memory as in their file.
    readonly property int maximumFileSize: 100e6
    // The emulator was told to stop after an error and has not said "OK" since. It may be the stop
    // that it refuses.
    property bool stoppedAfterError: false
    // How many files have been read or begun.
    property int fileRequests: 0
    // The track was playing when the handle of the progress was taken.
    property bool playingWhenPressed: false

    // The row is to be seen.
    signal rowWanted(row: int)

    function openFile(url: url) {
        const request = ++fileRequests;
        nmeaFileUrl = url;
        TextFile.read(url, text => {
            // another file may have been chosen in the meantime
            if (request === fileRequests)
                showTrack(text);
        });
    }

    function showTrack(text: var) {
        let points;
        try {
            if (text === null)
                throw new Error(qsTr("NMEA file cannot be read"));
            if (text.length > maximumFileSize) {
                throw new Error(qsTr("NMEA file is larger than %1 MB")
                                    .arg(maximumFileSize / 1e6));
            }
            points = Nmea.loadNmeaLog(text);
        } catch (error) {
            clearTrack();
            errorDialog.show(error.incorrectLine > 0
                ? error.message + qsTr(", line: %1").arg(error.incorrectLine) : error.message);
            return;
        }
        const rows = TrackRows.tableRows(points, locale, latLongRoundingSize, altRoundingSize);
        actualTrackPoints = TrackRows.trackRecord(rows, points);
        track.setRows(rows);
        // Rows have no field of that name, so that any track may be played at its own speed.
        onlyDefaultInterval = Nmea.trackHasPointsWithoutDateTime(rows);
        if (onlyDefaultInterval)
            gpsManager.setTrackIntervalMode(true);
        gpsManager.currentPositionIndex = 0;
        selectRow(0);
        setCurrentCoordinate();
        player.stop();
        gpsManager.loadTrack(actualTrackPoints);
    }

    function clearTrack() {
        playingWhenPressed = false;
        track.setRows([]);
    }

    function selectRow(row: int) {
        track.selectRow(row);
        if (player.playing)
            rowWanted(row);
    }

    // Shows the current point as the position; the emulator learns of it as a point of the track.
    function setCurrentCoordinate() {
        const index = gpsManager.currentPositionIndex;
        if (index > lastRow)
            return;
        const row = track.row(index);
        gpsManager.setLocalPosition(row["Latitude"], row["Longitude"], row["Altitude"]);
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
                        Layout.fillWidth: true
                        currentIndex: root.gpsManager.currentPositionIndex
                        enabled: track.rowCount > 0
                        locale: root.locale
                        rowCount: track.rowCount

                        onMoved: index => {
                            root.selectRow(index);
                            root.gpsManager.goToPositionOnTrack(index);
                        }
                        onPressedChanged: {
                            if (pressed) {
                                root.playingWhenPressed = player.playing;
                                player.hold();
                            } else if (root.playingWhenPressed) {
                                player.start();
                            }
                        }
                    }

                    TrackControls {
                        Layout.fillWidth: true
                        enabled: track.rowCount > 0
                        gpsManager: root.gpsManager
                        onlyDefaultInterval: root.onlyDefaultInterval
                        playing: player.playing
                        stopped: root.trackStopped

                        onPauseClicked: player.pause()
                        onPlayClicked: {
                            root.trackStopped = false;
                            player.start();
                        }
                        onStopClicked: {
                            root.trackStopped = true;
                            player.stop();
                        }
                    }

                    TrackTable {
                        id: trackTable

                        Layout.fillHeight: true
                        Layout.fillWidth: true
                        Layout.minimumHeight: 60

                        track: track

                        Connections {
                            target: root

                            function onRowWanted(row: int) {
                                trackTable.showRow(row);
                            }
                        }
                    }
                }
            }
        }
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

        onCurrentRowChanged: {
            if (currentRow >= 0 && rowCount > 0)
                player.goToRow(currentRow);
        }
    }

    TrackPlayer {
        id: player

        gpsManager: root.gpsManager
        lastRow: root.lastRow
    }

    Connections {
        target: root.gpsManager

        function onCurrentPositionIndexChanged() {
            if (track.rowCount === 0)
                return;
            const index = root.gpsManager.currentPositionIndex;
            root.selectRow(index);
            root.setCurrentCoordinate();
            if (index >= root.lastRow && !root.gpsManager.trackLooped)
                root.trackStopped = true;
        }

        function onReplyFromEmulatorReceived(reply: string) {
            if (reply === "OK") {
                root.stoppedAfterError = false;
                return;
            }
            if (root.stoppedAfterError) {
                player.hold();
            } else {
                root.stoppedAfterError = true;
                player.stop();
            }
            root.nmeaFileUrl = "";
            root.clearTrack();
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
