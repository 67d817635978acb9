import QtQuick

// Plays a track: a timer steps from point to point, and the emulator is told each of them.
//
// The manager's currentPositionIndex says where playback is; the current row follows it, and each
// new one goes to the emulator. Whether a track is stopped, plays or is paused is known here.
Item {
    id: root

    enum Playback { Stopped, Playing, Paused }

    required property var gpsManager
    required property TrackModel track
    // The track as the emulator was given it.
    property var actualTrackPoints: []
    readonly property int lastRow: track.rowCount - 1
    property int currentRow: -1 // -1 for none
    property int playback: TrackPlayer.Stopped
    readonly property bool playing: playback === TrackPlayer.Playing
    readonly property bool stopped: playback === TrackPlayer.Stopped
    // Milliseconds between points without intervals of their own, and before a track starts over.
    readonly property int defaultInterval: 2000
    // The track goes on when the handle of the progress is released.
    property bool playingWhenHeld: false

    // Takes another track and uploads it.
    function setTrack(rows: var, trackPoints: var) {
        setRows(rows);
        actualTrackPoints = trackPoints;
        gpsManager.currentPositionIndex = 0;
        gpsManager.stopTrack();
        gpsManager.loadTrack(actualTrackPoints);
    }

    function clear() {
        setRows([]);
    }

    function setRows(rows: var) {
        rest();
        currentRow = -1;
        track.setRows(rows);
    }

    function start() {
        trackTimer.stop();
        playingWhenHeld = false;
        if (gpsManager.currentPositionIndex === lastRow)
            gpsManager.stopTrack();
        gpsManager.startTrack();
        runTrackTimer();
        // a track of one point ends where it starts
        playback = trackTimer.running ? TrackPlayer.Playing : TrackPlayer.Stopped;
    }

    function pause() {
        trackTimer.stop();
        playback = TrackPlayer.Paused;
        gpsManager.pauseTrack();
        synchronize();
    }

    // The timer ends first: while it runs, a new current row starts the track again, and the first
    // row becomes current here.
    function stop() {
        rest();
        gpsManager.stopTrack();
    }

    // Ends playback without telling the emulator.
    function rest() {
        trackTimer.stop();
        playingWhenHeld = false;
        playback = TrackPlayer.Stopped;
    }

    // Waits until release() without telling the emulator.
    function hold() {
        playingWhenHeld = playing;
        if (!playing)
            return;
        trackTimer.stop();
        playback = TrackPlayer.Paused;
    }

    function release() {
        if (playingWhenHeld)
            start();
    }

    // Goes to a row that the user chose, also when it is the current one.
    function chooseRow(row: int) {
        if (row === currentRow)
            goToCurrentRow();
        else
            currentRow = row;
    }

    function goToCurrentRow() {
        // a connection that was lost took the track with it
        if (!gpsManager.trackLoaded)
            gpsManager.loadTrack(actualTrackPoints);
        gpsManager.goToPositionOnTrack(currentRow);
        // not during a step, which goes on by itself
        if (trackTimer.running)
            start();
    }

    // Shows the current point as the position; the emulator learns of it as a point of the track.
    function setCurrentCoordinate() {
        if (currentRow < 0) // the link was lost while it was told
            return;
        const row = track.getRow(currentRow);
        gpsManager.setLocalPosition(row["Latitude"], row["Longitude"], row["Altitude"]);
    }

    function runTrackTimer() {
        const index = gpsManager.currentPositionIndex;
        if (index < lastRow) {
            const interval = gpsManager.useDefaultInterval
                ? defaultInterval : actualTrackPoints[index + 1].interval;
            runTrackTimerFor(interval / gpsManager.trackSpeed);
        } else if (gpsManager.trackLooped && lastRow >= 0) {
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
        gpsManager.currentPositionIndex = index >= lastRow ? 0 : index + 1;
        runTrackTimer();
        if (!trackTimer.running) {
            rest();
            synchronize();
        }
    }

    function synchronize() {
        gpsManager.goToPositionOnTrack(gpsManager.currentPositionIndex);
    }

    onCurrentRowChanged: {
        if (currentRow >= 0)
            goToCurrentRow();
    }

    Timer {
        id: trackTimer

        onTriggered: root.step()
    }

    Timer {
        interval: 100
        repeat: true
        running: root.playing

        onTriggered: root.synchronize()
    }

    Connections {
        target: root.gpsManager

        function onCurrentPositionIndexChanged() {
            const index = root.gpsManager.currentPositionIndex;
            if (index > root.lastRow)
                return;
            root.currentRow = index;
            root.setCurrentCoordinate();
        }
    }
}
