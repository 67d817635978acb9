import QtQuick

// Plays a track: a timer steps from point to point, and the emulator is told each of them.
//
// The manager's currentPositionIndex says where playback is; the current row follows it, and each
// new one goes to the emulator. Whether a track is stopped, plays or is paused is known here.
Item {
    id: root

    enum Playback { Stopped, Playing, Paused }

    // A GPSEmulationManager; the test of this component gives one whose clock it sets.
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
    // Milliseconds, twelve days.
    readonly property int longestInterval: 1 << 30
    // Milliseconds. After a longer delay, as when the machine slept, the schedule starts anew.
    readonly property int longestDelay: 1000
    readonly property int frame: 16 // milliseconds
    // When the present step is due, by the manager's clock.
    property double dueTime: 0
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
        dueTime = gpsManager.monotonicTime();
        // a track of one point ends where it starts
        playback = scheduleStep() ? TrackPlayer.Playing : TrackPlayer.Stopped;
        if (playing)
            runTrackTimer();
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

    // Sets when the next step is due; false at the end. Counts from the time when the present step
    // was due, so that delays do not add up.
    function scheduleStep(): bool {
        const index = gpsManager.currentPositionIndex;
        let interval = defaultInterval;
        if (index < lastRow) {
            if (!gpsManager.useDefaultInterval)
                interval = actualTrackPoints[index + 1].interval;
            interval /= gpsManager.trackSpeed;
        } else if (!gpsManager.trackLooped || lastRow < 0) {
            return false;
        }
        dueTime += Math.min(Math.max(1, Math.trunc(interval)), longestInterval);
        return true;
    }

    function runTrackTimer() {
        trackTimer.interval = Math.max(0, Math.round(dueTime - gpsManager.monotonicTime()));
        trackTimer.restart();
    }

    // Takes all steps that are due: intervals may be shorter than the time that the window takes to
    // draw a picture. Ends after a frame, so that the window still answers when steps take longer
    // than their intervals.
    function step() {
        const now = gpsManager.monotonicTime();
        // a timer counts from the last picture of the window, and so may fire early
        if (dueTime - now > frame / 2) {
            runTrackTimer();
            return;
        }
        if (now - dueTime > longestDelay)
            dueTime = now;
        do {
            const index = gpsManager.currentPositionIndex;
            gpsManager.currentPositionIndex = index >= lastRow ? 0 : index + 1;
            if (!scheduleStep()) {
                rest();
                synchronize();
                return;
            }
        } while (dueTime <= now && gpsManager.monotonicTime() - now < frame);
        runTrackTimer();
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
