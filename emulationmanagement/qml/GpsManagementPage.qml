import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts

import "../js/nmea-parsing.js" as Nmea
import "../js/text-file.js" as TextFile
import "../js/track-rows.js" as TrackRows

// Sets a position, or plays a track: a timer steps from point to point, and the emulator is told
// each of them.
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
    // Milliseconds between points without intervals of their own, and before a track starts over.
    readonly property int defaultInterval: 2000
    readonly property int lastRow: trackTable.rowCount - 1
    // The track as the emulator was given it.
    property var actualTrackPoints: []
    // The track has no times to play it by.
    property bool onlyDefaultInterval: false
    property bool trackStopped: true
    property string nmeaFileUrl: ""
    // How many files have been read or begun.
    property int fileRequests: 0
    // The track was playing when the handle of the progress was taken.
    property bool playingWhenPressed: false

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
            points = Nmea.loadNmeaLog(text);
        } catch (error) {
            clearTrack();
            errorDialog.text = error.incorrectLine > 0
                ? error.message + ", line: " + error.incorrectLine : error.message;
            errorDialog.open();
            return;
        }
        const rows = TrackRows.tableRows(points, locale, latLongRoundingSize, altRoundingSize);
        actualTrackPoints = TrackRows.trackRecord(rows, points);
        trackTable.setRows(rows);
        // Rows have no field of that name, so that any track may be played at its own speed.
        onlyDefaultInterval = Nmea.trackHasPointsWithoutDateTime(rows);
        if (onlyDefaultInterval)
            gpsManager.setTrackIntervalMode(true);
        gpsManager.currentPositionIndex = 0;
        selectRow(0);
        setCurrentCoordinate();
        stopTrack();
        gpsManager.loadTrack(actualTrackPoints);
    }

    function clearTrack() {
        playingWhenPressed = false;
        trackTable.setRows([]);
    }

    function selectRow(row: int) {
        trackTable.selectRow(row);
        if (trackTimer.running)
            trackTable.showRow(row);
    }

    // Shows the current point as the position; the emulator learns of it as a point of the track.
    function setCurrentCoordinate() {
        const index = gpsManager.currentPositionIndex;
        if (index > lastRow)
            return;
        const row = trackTable.row(index);
        gpsManager.setLocalPosition(row["Latitude"], row["Longitude"], row["Altitude"]);
    }

    function startTrack() {
        if (gpsManager.currentPositionIndex === lastRow)
            gpsManager.stopTrack();
        gpsManager.startTrack();
        runTrackTimer();
    }

    function pauseTrack() {
        gpsManager.pauseTrack();
        synchronize();
        trackTimer.stop();
    }

    // The emulator hears "startTrack" once more if the first row is not current: see goToRow().
    function stopTrack() {
        gpsManager.stopTrack();
        trackTimer.stop();
    }

    function goToRow(row: int) {
        if (row < 0 || trackTable.rowCount === 0)
            return;
        // a connection that was lost took the track with it
        if (!gpsManager.trackLoaded)
            gpsManager.loadTrack(actualTrackPoints);
        gpsManager.goToPositionOnTrack(row);
        const playing = trackTimer.running;
        trackTimer.stop();
        if (playing)
            startTrack();
    }

    function runTrackTimer() {
        const index = gpsManager.currentPositionIndex;
        if (index < lastRow) {
            const interval = gpsManager.useDefaultInterval
                ? defaultInterval : actualTrackPoints[index + 1].interval;
            runTrackTimerFor(interval / gpsManager.trackSpeed);
        } else if (gpsManager.trackLooped) {
            runTrackTimerFor(defaultInterval);
        }
    }

    function runTrackTimerFor(interval: double) {
        const longestInterval = 0x7fffffff;
        trackTimer.interval = Math.min(Math.max(1, Math.trunc(interval)), longestInterval);
        trackTimer.restart();
    }

    function step() {
        const index = gpsManager.currentPositionIndex;
        const next = index >= lastRow ? 0 : index + 1;
        gpsManager.currentPositionIndex = next;
        if (next < lastRow || gpsManager.trackLooped)
            runTrackTimer();
        else
            synchronize();
    }

    function synchronize() {
        gpsManager.goToPositionOnTrack(gpsManager.currentPositionIndex);
    }

    onOnlyDefaultIntervalChanged: {
        if (!onlyDefaultInterval)
            return;
        messageDialog.text = qsTr("The loaded NMEA file has no temporal information. "
                                  + "Thus you cannot play it at its own speed.");
        messageDialog.open();
    }

    Timer {
        id: trackTimer

        onTriggered: root.step()
    }

    Timer {
        interval: 100
        repeat: true
        running: trackTimer.running

        onTriggered: root.synchronize()
    }

    Connections {
        target: root.gpsManager

        function onCurrentPositionIndexChanged() {
            if (trackTable.rowCount === 0)
                return;
            const index = root.gpsManager.currentPositionIndex;
            root.selectRow(index);
            root.setCurrentCoordinate();
            if (index >= root.lastRow && !root.gpsManager.trackLooped)
                root.trackStopped = true;
        }

        function onReplyFromEmulatorReceived(reply: string) {
            if (reply === "OK")
                return;
            root.stopTrack();
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

    PageScrollView {
        id: scrollView

        anchors.fill: parent
        anchors.margins: 12

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

            GroupBox {
                Layout.fillWidth: true
                title: qsTr("Coordinate")

                RowLayout {
                    anchors.fill: parent
                    spacing: 12

                    CoordinateField {
                        id: latitudeField

                        decimals: root.latLongRoundingSize
                        label: qsTr("Latitude")
                        locale: root.locale
                        maxValue: root.latitudeMaxValue
                        minValue: root.latitudeMinValue

                        onSubmitted: value => root.gpsManager.setLatitude(value)
                    }

                    CoordinateField {
                        id: longitudeField

                        decimals: root.latLongRoundingSize
                        label: qsTr("Longitude")
                        locale: root.locale
                        maxValue: root.longitudeMaxValue
                        minValue: root.longitudeMinValue

                        onSubmitted: value => root.gpsManager.setLongitude(value)
                    }

                    CoordinateField {
                        id: altitudeField

                        decimals: root.altRoundingSize
                        label: qsTr("Altitude")
                        locale: root.locale
                        maxValue: root.altitudeMaxValue
                        minValue: root.altitudeMinValue

                        onSubmitted: value => root.gpsManager.setAltitude(value)
                    }

                    Button {
                        text: qsTr("Set")

                        onClicked: {
                            if (trackTimer.running)
                                root.pauseTrack();
                            root.gpsManager.setPosition(latitudeField.value(), longitudeField.value(),
                                                        altitudeField.value());
                        }
                    }
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
                        enabled: trackTable.rowCount > 0
                        locale: root.locale
                        rowCount: trackTable.rowCount

                        onMoved: index => {
                            root.selectRow(index);
                            root.gpsManager.goToPositionOnTrack(index);
                        }
                        onPressedChanged: {
                            if (pressed) {
                                root.playingWhenPressed = trackTimer.running;
                                trackTimer.stop();
                            } else if (root.playingWhenPressed) {
                                root.startTrack();
                            }
                        }
                    }

                    TrackControls {
                        Layout.fillWidth: true
                        enabled: trackTable.rowCount > 0
                        gpsManager: root.gpsManager
                        onlyDefaultInterval: root.onlyDefaultInterval
                        playing: trackTimer.running
                        stopped: root.trackStopped

                        onPauseClicked: root.pauseTrack()
                        onPlayClicked: {
                            root.trackStopped = false;
                            root.startTrack();
                        }
                        onStopClicked: {
                            root.trackStopped = true;
                            root.stopTrack();
                        }
                    }

                    TrackTable {
                        id: trackTable

                        Layout.fillHeight: true
                        Layout.fillWidth: true
                        Layout.minimumHeight: 60

                        onCurrentRowChanged: root.goToRow(currentRow)
                    }
                }
            }
        }
    }
}
