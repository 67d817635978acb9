import QtQuick

// Plays a track: a timer steps from point to point, and the emulator is told each of them.
Item {
    id: root

    required property var gpsManager
    // The track as the emulator was given it.
    property var actualTrackPoints: []
    property int lastRow: -1
    readonly property alias playing: trackTimer.running
    // Milliseconds between points without intervals of their own, and before a track starts over.
    readonly property int defaultInterval: 2000

    function start() {
        if (gpsManager.currentPositionIndex === lastRow)
            gpsManager.stopTrack();
        gpsManager.startTrack();
        runTrackTimer();
    }

    function pause() {
        gpsManager.pauseTrack();
        synchronize();
        hold();
    }

    // The emulator hears "startTrack" once more if the first row is not current: see goToRow().
    function stop() {
        gpsManager.stopTrack();
        hold();
    }

    // Stays at a point without a word to the emulator.
    function hold() {
        trackTimer.stop();
    }

    function goToRow(row: int) {
        // a connection that was lost took the track with it
        if (!gpsManager.trackLoaded)
            gpsManager.loadTrack(actualTrackPoints);
        gpsManager.goToPositionOnTrack(row);
        const wasPlaying = playing;
        hold();
        if (wasPlaying)
            start();
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
}
