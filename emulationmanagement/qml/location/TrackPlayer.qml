import QtQuick

import org.plova 1.0

// Plays a track: a timer steps from point to point, and each point is sent to the emulator.
//
// The manager's currentPositionIndex is the place of playback. The current row follows it, and each
// new current row is sent to the emulator. This component knows whether a track is stopped, is
// playing or is paused.
Item {
    id: root

    enum Playback { Stopped, Playing, Paused }

    required property GPSEmulationManager gpsManager
    required property TrackModel trackModel
    // The track that was uploaded last, also after the table was cleared.
    readonly property TrackModel actualTrackPoints: trackModel
    readonly property int lastRow: trackModel.rowCount - 1
    property int currentRow: -1 // -1 means that no row is current
    property int playback: TrackPlayer.Stopped
    readonly property bool playing: playback === TrackPlayer.Playing
    readonly property bool stopped: playback === TrackPlayer.Stopped
    // All times are milliseconds.
    //
    // The interval between points that have no intervals of their own, and before a looped track
    // starts again.
    readonly property int defaultInterval: 2000
    readonly property int longestInterval: 1 << 30 // twelve days, which a timer can still wait
    // After a longer delay, for example because the machine slept, the schedule starts again.
    readonly property int longestDelay: 1000
    readonly property int frame: 16
    // The time of the next step, by monotonicTime().
    property double dueTime: 0
    // Whether playback continues after hold().
    property bool playingWhenHeld: false

    // Returns the time of a clock that nobody sets. A test overrides this.
    function monotonicTime(): double {
        return gpsManager.monotonicTime();
    }

    // Replaces the track by the one that was read, and uploads it.
    function takeTrack() {
        clear();
        trackModel.takeTrack(gpsManager.trackReader);
        gpsManager.currentPositionIndex = 0;
        gpsManager.stopTrack();
        gpsManager.uploadTrack(actualTrackPoints);
    }

    function clear() {
        rest();
        currentRow = -1;
        trackModel.clear();
    }

    function start() {
        trackTimer.stop();
        playingWhenHeld = false;
        if (gpsManager.currentPositionIndex === lastRow)
            gpsManager.stopTrack();
        gpsManager.startTrack();
        dueTime = monotonicTime();
        // A track of one point ends at once.
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

    // Stops the timer first: stopTrack() makes the first row current, and a new current row starts
    // the track again while the timer runs.
    function stop() {
        rest();
        gpsManager.stopTrack();
    }

    // Ends playback without a call to the emulator.
    function rest() {
        trackTimer.stop();
        playingWhenHeld = false;
        playback = TrackPlayer.Stopped;
    }

    // Interrupts playback until release(), without a call to the emulator.
    function hold() {
        if (!playing)
            return;
        playingWhenHeld = true;
        trackTimer.stop();
        playback = TrackPlayer.Paused;
    }

    function release() {
        if (playingWhenHeld && !gpsManager.suspended)
            start();
    }

    // Goes back to a row and a position after the manager has set up the emulator anew, which may
    // have lost its track, and goes on if hold() has interrupted playback.
    function restore(row: int, latitude: double, longitude: double, altitude: double) {
        if (lastRow < 0)
            return;
        gpsManager.currentPositionIndex = row;
        if (!gpsManager.trackLoaded)
            goToCurrentRow();
        if (stopped)
            gpsManager.setPosition(latitude, longitude, altitude);
        else
            release();
    }

    // Goes to a row that the user chose, even if it is already the current row.
    function chooseRow(row: int) {
        if (row === currentRow)
            goToCurrentRow();
        else
            currentRow = row;
    }

    function goToCurrentRow() {
        // The emulator loses its track when the connection is lost.
        if (!gpsManager.trackLoaded)
            gpsManager.uploadTrack(actualTrackPoints);
        gpsManager.goToPositionOnTrack(currentRow);
        // The timer does not run during a step, which starts it again itself.
        if (trackTimer.running)
            start();
    }

    // Shows the current point as the position. The emulator has the position from its track.
    function setCurrentCoordinate() {
        // The table is cleared if the connection is lost while the row is sent.
        if (currentRow < 0)
            return;
        const point = actualTrackPoints.at(currentRow);
        // Texts with group separators give NaN.
        gpsManager.setLocalPosition(Number(point.latitude), Number(point.longitude),
                                    Number(point.altitude));
    }

    // Sets the time of the next step. Returns false at the end of the track. The interval counts
    // from the time when the last step was due, so that delays do not add up.
    function scheduleStep(): bool {
        const index = gpsManager.currentPositionIndex;
        let interval = defaultInterval;
        if (index < lastRow) {
            if (!gpsManager.useDefaultInterval)
                interval = actualTrackPoints.at(index + 1).interval;
            interval /= gpsManager.trackSpeed;
        } else if (!gpsManager.trackLooped || lastRow < 0) {
            return false;
        }
        dueTime += Math.min(Math.max(1, Math.trunc(interval)), longestInterval);
        return true;
    }

    function runTrackTimer() {
        trackTimer.interval = Math.max(0, Math.round(dueTime - monotonicTime()));
        trackTimer.restart();
    }

    // Takes all steps that are due, because intervals may be shorter than a frame of the window.
    // Returns after the time of a frame, so that the window still responds if steps take longer
    // than their intervals.
    function step() {
        const now = monotonicTime();
        // A timer may fire early because it counts from the last frame of the window.
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
        } while (dueTime <= now && monotonicTime() - now < frame);
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
