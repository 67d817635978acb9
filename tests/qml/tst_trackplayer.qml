import QtQuick
import QtTest

import "qrc:/emulationmanagement/qml/location"

TestCase {
    id: test

    readonly property var point: ({"No.": 0, "Time": "", "Latitude": "", "Longitude": "",
                                   "Altitude": ""})
    property double clock: 0
    property int stepTime: 0

    name: "TrackPlayer"

    Component {
        id: component

        TrackPlayer {
            function monotonicTime(): double { return test.clock; }

            gpsManager: gpsEmulationManager
            track: TrackModel {}

            onCurrentRowChanged: test.clock += test.stepTime
        }
    }

    // The timer fires so many milliseconds after the last time. Then the track is at this point and
    // the timer waits so many milliseconds.
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
        const player = createTemporaryObject(component, test);
        gpsEmulationManager.setTrackSpeed(row.speed ?? 1);
        stepTime = row.stepTime ?? 0;
        player.setTrack(Array(9).fill(point), Array(9).fill({interval: row.interval}));
        player.start();
        const timer = player.data[0];
        for (const [after, index, wait] of row.steps) {
            clock += after;
            timer.stop();
            timer.triggered();
            compare([gpsEmulationManager.currentPositionIndex, timer.interval], [index, wait]);
        }
    }
}
