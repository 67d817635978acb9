pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Dialogs

import org.plova 1.0

import "location"
import "shared"
import "../js/location/number-texts.js" as NumberTexts
import "../js/location/track-points.js" as TrackPoints

// Sets a position, or loads a track and plays it.
EmulationPage {
    id: root

    required property ErrorMessageDialog errorDialog
    required property MessageDialog messageDialog

    readonly property GPSEmulationManager gpsManager: gpsEmulationManager // qmllint disable unqualified
    readonly property TrackReader trackReader: gpsManager.trackReader
    readonly property var locale: NumberTexts.locale // QML has no type for locales
    readonly property double latitudeMinValue: -90
    readonly property double latitudeMaxValue: 90
    readonly property double longitudeMinValue: -180
    readonly property double longitudeMaxValue: 180
    readonly property double altitudeMinValue: -1000
    readonly property double altitudeMaxValue: 10000
    readonly property int latLongRoundingSize: TrackPoints.latLongRoundingSize
    readonly property int altRoundingSize: TrackPoints.altRoundingSize
    readonly property alias defaultInterval: player.defaultInterval
    readonly property alias lastRow: player.lastRow
    readonly property alias actualTrackPoints: player.actualTrackPoints
    readonly property alias player: player
    readonly property alias trackModel: trackModel
    readonly property alias fileDialog: fileDialog
    // Whether the track has no times to play it by.
    property bool onlyDefaultInterval: false
    readonly property alias trackStopped: player.stopped
    property string nmeaFileUrl: ""
    // The file of the track that is shown, while another one is being read.
    property string previousFileUrl: ""
    // Bytes. A file takes about twice as much memory while it is being read.
    readonly property int maximumFileSize: 300e6
    // A track must fit into one upload. The text has at most 46 characters for each point and must
    // fit into maxRequestBytes of emulator/relay.cpp. A reply repeats the text, so it must also fit
    // into maxReplySize of link/remotedbusinvokerservice.h. A point has 40 bytes in a D-Bus array,
    // which has at most 64 MiB.
    readonly property int maximumPoints: 1.4e6
    // Whether playback was stopped because of an error, and no "OK" has come since. The emulator
    // may refuse the stop, too, which must not cause another stop.
    property bool stoppedAfterError: false

    function openFile(url: url) {
        trackReader.cancel();
        previousFileUrl = nmeaFileUrl;
        nmeaFileUrl = url;
        const size = gpsManager.fileSize(url);
        if (size < 0)
            refuseUnreadableFile();
        else if (size > maximumFileSize)
            refuseTrack(qsTr("NMEA file is larger than %1 MB").arg(maximumFileSize / 1e6));
        else
            trackReader.read(url, maximumPoints);
    }

    function showTrack() {
        player.takeTrack();
        // It is required that the table is checked, not the points. It has no times by this name,
        // so the answer is always false and any track can be played at its own speed.
        onlyDefaultInterval = TrackPoints.trackHasPointsWithoutDateTime(trackModel);
        if (onlyDefaultInterval)
            gpsManager.setTrackIntervalMode(true);
    }

    function refuseUnreadableFile() {
        refuseTrack(qsTr("NMEA file cannot be read"));
    }

    // Stops playback first, because the user cannot stop it while the table is empty.
    function refuseTrack(message: string) {
        if (!player.stopped)
            player.stop();
        clearTrack();
        errorDialog.show(message);
    }

    function clearTrack() {
        trackReader.cancel();
        player.clear();
    }

    contentFile: Qt.resolvedUrl("location/GpsManagementContent.qml")

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
        id: trackModel
    }

    TrackPlayer {
        id: player

        gpsManager: root.gpsManager
        trackModel: trackModel
    }

    Connections {
        target: root.gpsManager

        // A recording is played instead. Afterwards, the emulator is set up anew.
        function onSuspendedChanged() {
            if (root.gpsManager.suspended) {
                player.hold();
                return;
            }
            const position = root.gpsManager.currentPosition;
            Qt.callLater(player.restore, root.gpsManager.currentPositionIndex, position.latitude,
                         position.longitude, position.altitude);
        }

        function onReplyFromEmulatorReceived(reply: string) {
            if (reply === "OK") {
                root.stoppedAfterError = false;
                return;
            }
            if (!root.stoppedAfterError) {
                root.stoppedAfterError = true;
                player.stop();
            }
            root.clearTrack();
            root.nmeaFileUrl = "";
        }
    }

    Connections {
        target: root.trackReader

        function onLoaded() {
            root.showTrack();
        }

        function onFailed(message: string, line: int) {
            if (message === "")
                root.refuseUnreadableFile();
            else
                root.refuseTrack(line > 0 ? message + qsTr(", line: %1").arg(line) : message);
        }

        function onCanceled() {
            root.nmeaFileUrl = root.previousFileUrl;
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
