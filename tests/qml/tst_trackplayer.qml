import QtQuick
import QtTest

import org.plova 1.0

import "qrc:/emulationmanagement/qml/location"

import "find.js" as Find

TestCase {
    id: test

    property double clock: 0
    property int stepTime: 0

    name: "Track"
    visible: true
    when: windowShown
    width: 800

    Component {
        id: component

        TrackPlayer {
            function monotonicTime(): double { return test.clock; }

            gpsManager: gpsEmulationManager
            trackModel: TrackModel {}

            onCurrentRowChanged: test.clock += test.stepTime
        }
    }

    TrackTable {
        id: table

        height: 100
        trackModel: TrackModel {}
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
        host.fillTrack(player.trackModel, 9, row.interval);
        gpsEmulationManager.currentPositionIndex = 0;
        player.start();
        const timer = player.data[0];
        for (const [after, index, wait] of row.steps) {
            clock += after;
            timer.stop();
            timer.triggered();
            compare([gpsEmulationManager.currentPositionIndex, timer.interval], [index, wait]);
        }
    }

    // The headings are above their columns, also after the table gets another width.
    function test_headings() {
        const view = Find.find(table, item => item instanceof TableView);
        host.fillTrack(table.trackModel, 1, 0);
        for (const width of [400, 800]) {
            table.width = width;
            waitForRendering(table);
            ["No.", "Time", "Latitude", "Longitude", "Altitude"].forEach((title, column) => {
                const heading = Find.find(table, item => item.text === title);
                const cell = view.itemAtCell(Qt.point(column, 0));
                compare([heading.mapToItem(view, 0, 0).x, heading.width],
                        [cell.mapToItem(view, 0, 0).x, cell.width]);
            });
        }
    }
}
