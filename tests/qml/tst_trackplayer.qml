import QtQuick
import QtTest

import "qrc:/emulationmanagement/qml/location"

// When the steps of a track come, by a clock that the test sets.
TestCase {
    id: test

    name: "TrackPlayer"

    QtObject {
        id: manager

        property int currentPositionIndex: 0
        property int trackSpeed: 1
        property double clock: 0
        property int stepTime: 0
        readonly property bool trackLoaded: true
        readonly property bool trackLooped: false
        readonly property bool useDefaultInterval: false

        function goToPositionOnTrack() { clock += stepTime; }
        function loadTrack() {}
        function monotonicTime(): double { return clock; }
        function setLocalPosition() {}
        function startTrack() {}
        function stopTrack() {}
    }

    Component {
        id: component

        TrackPlayer {
            gpsManager: manager
            track: TrackModel {}
        }
    }

    // The timer fires so long after the last time. Then the track is at this point and the timer
    // waits so long.
    function test_schedule_data(): var {
        return [
            {tag: "delays or fractions add up", interval: 404, speed: 5,
             steps: [[78, 1, 82], [97, 2, 65], [65, 3, 80]]},
            {tag: "step too early", interval: 100, steps: [[75, 0, 25], [20, 1, 105]]},
            {tag: "steps left out", interval: 100, steps: [[350, 3, 50], [51, 4, 99]]},
            {tag: "steps after a sleep", interval: 100, steps: [[3.6e6, 1, 100]]},
            {tag: "frozen window", interval: 0, stepTime: 8, steps: [[9, 2, 0], [0, 4, 0]]},
            {tag: "years", interval: 366 * 86400000, steps: [[1 << 30, 1, 1 << 30]]},
        ];
    }

    function test_schedule(row: var) {
        const point = {"No.": 0, "Time": "", "Latitude": "", "Longitude": "", "Altitude": "",
                       interval: row.interval};
        const points = Array(9).fill(point);
        const player = createTemporaryObject(component, test);
        manager.trackSpeed = row.speed ?? 1;
        manager.stepTime = row.stepTime ?? 0;
        player.setTrack(points, points);
        player.start();
        const timer = player.data[0];
        for (const [after, index, wait] of row.steps) {
            manager.clock += after;
            timer.stop();
            timer.triggered();
            compare([manager.currentPositionIndex, timer.interval], [index, wait]);
        }
    }
}
