import QtQuick
import QtTest

import "qrc:/emulationmanagement/js/devicemodel/smartphone-model-page-logic.js" as Logic

import "quaternions.js" as Quaternions

TestCase {
    readonly property double gravity: 9.80665

    name: "SmartphoneModelLogic"

    function near(actual: var, expected: var, tolerance: double) {
        expected.forEach((value, i) => fuzzyCompare(actual[i], value, tolerance));
    }

    function forEachAttitude(check: var) {
        Quaternions.forEachAttitude(200, check);
    }

    function test_readingsAtRest() {
        forEachAttitude((rotation, field) => {
            near(Logic.accelerometerReading(rotation, gravity, [0, 0, 0]),
                 Quaternions.seen(rotation, [0, gravity, 0]), 1e-9);
            near(Logic.magnetometerReading(rotation, field), Quaternions.seen(rotation, field), 1e-5);
        });
        compare(Logic.magnetometerReading([10, 20, 30], [0, 0, 0]), [0, 0, 0]);
    }

    function test_readingsInMotion() {
        forEachAttitude((rotation, [ax, ay, az]) => {
            const [, y, z] = Quaternions.seen(rotation, [ax, gravity + ay, az]);
            // unlike in nature, ay and az reach x with reversed signs
            const [x] = Quaternions.seen(rotation, [ax, gravity - ay, -az]);
            near(Logic.accelerometerReading(rotation, gravity, [ax, ay, az]), [x, y, z], 1e-9);
        });
    }

    function test_gyroscope() {
        forEachAttitude((rotation, turn) => {
            const period = 1e-6;
            const next = rotation.map((angle, i) => angle + turn[i] * period);
            const change = Quaternions.product(Quaternions.inverse(Quaternions.attitude(rotation)), Quaternions.attitude(next));
            const expected = change.slice(1).map(part => part * 360 / Math.PI / period);
            near(Logic.gyroscopeReading(rotation, Logic.rotationFrequencies(
                next, rotation, [false, false, false], period)), expected, 1e-2);
        });
        // unlike in nature, a wrapped axis always counts as turned forwards
        near(Logic.rotationFrequencies([15, -180, 180], [10, 175, -175], [false, true, true], 0.1),
             [5 / 36, 5 / 36, 5 / 36], 1e-12);
    }

    // Wherever a drag turns the device, also where the Euler angles jump.
    function test_gyroscopeWhileDragged() {
        forEachAttitude((rotation, [turnX, turnY]) => {
            const period = 1e-2; // s
            const turns = [turnX * period, turnY * period, 0];
            const next = Logic.turnedAboutWorldAxes(rotation, turns);
            if (Math.abs(next[1]) > 85)
                return; // the formula is for small steps, and the angles are steep there
            const frequencies = Logic.rotationFrequencies(
                next, Logic.nearestAngles(rotation, next), [false, false, false], period);
            near(Logic.gyroscopeReading(next, frequencies),
                 Quaternions.seen(next, [turnX, turnY, 0]), 5);
        });
    }

    function test_turnedAboutWorldAxes() {
        forEachAttitude((rotation, turns) => {
            const expected = Quaternions.turned(Quaternions.attitude(rotation), turns);
            const actual = Logic.turnedAboutWorldAxes(rotation, turns);
            verify(Quaternions.difference(Quaternions.attitude(actual), expected) < 1e-3);
        });
    }

    function test_dragTurn_data(): var {
        const half = 90 / 2; // from 45 degrees on one side to 45 on the other
        return [
            {tag: "turned on its side", base: [110, 100], pointer: [160, 120], turn: [10, 25, 0]},
            {tag: "right to left above", base: [150, 50], pointer: [50, 49],
             turn: [-0.5, -50, -half]},
            {tag: "left to right below", base: [50, 150], pointer: [150, 151],
             turn: [0.5, 50, -half]},
            {tag: "not damped near the origin", base: [130, 130], pointer: [70, 129],
             turn: [-0.5, -30, -half * Math.sin(29 * Math.PI / 180)]},
            {tag: "no angle at the origin", base: [50, 100], pointer: [100, 100], turn: [0, 25, 0]},
        ];
    }

    function test_dragTurn(row: var) {
        const [base, pointer] = [row.base, row.pointer].map(([x, y]) => Qt.point(x, y));
        near(Logic.dragTurn(Qt.point(100, 100), base, pointer), row.turn, 0.5);
    }

    function test_wireAcceleration() {
        const steps = [Math.sin(Math.PI / 6), 0.9999, -0.9999].map(
            g => Logic.wireAcceleration(g * gravity, 1000 / gravity));
        compare(steps, [500, 999, -999]);
    }
}
