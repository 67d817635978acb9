import QtQuick
import QtQuick.Controls
import QtTest

import "qrc:/emulationmanagement/qml"

import "find.js" as Find
import "quaternions.js" as Quaternions

Item {
    id: root

    width: 919
    height: 600

    Component {
        id: component

        SmartphoneModelPage {
            anchors.fill: parent
        }
    }

    TestCase {
        id: test

        property SmartphoneModelPage page
        property DeviceMotion motion
        property SmartphoneModelArea area

        name: "SmartphoneModelPage"
        when: windowShown

        function init() {
            failOnWarning(/.*/);
            host.reset();
            sensorsEmulationManager.setMagneticFieldValues(10, 20, 30);
            page = createTemporaryObject(component, root);
            motion = Array.from(page.data).find(child => child instanceof DeviceMotion);
            page.active = true;
            area = Find.find(page, item => item instanceof SmartphoneModelArea);
        }

        // A sensor's values; those of the magnetometer in tenths of a microtesla.
        function sent(sensor: string): var {
            const model = sensorsEmulationManager[sensor];
            const unit = sensor === "magnetometer" ? 1e-7 : 1;
            return [model.x, model.y, model.z].map(value => Math.round(value / unit));
        }

        // The gyroscope's values after a change between two samples. The timer takes no samples.
        function sampled(change: var): var {
            page.active = false;
            motion.sample();
            change();
            motion.sample();
            return sent("gyroscope");
        }

        // The page must have the focus afterwards, also when a slider's field had it.
        function startMoving(start: double) {
            mouseClick(Find.find(page, item => item instanceof TextField));
            mouseClick(Find.find(page, item => item.text === "Move"));
            motion.displacement = [start, start, start];
        }

        function test_activation() {
            compare([sent("accelerometer"), sent("gyroscope"), sent("magnetometer")],
                    [[0, 1000, 0], [0, 0, 0], [100, 200, 300]]);
            verify(Find.find(page, item => item.visible && item.text
                                           === "Accelerometer (m/s²): 0.000 9.807 0.000"));
            sensorsEmulationManager.setGyroscopeX(1);
            tryVerify(() => sent("gyroscope")[0] === 0); // the timer sends it
            page.active = false;
            verify(!Array.from(page.data).find(child => child instanceof Timer).running);
            page.rotate([45, 0, 0]);
            compare(sent("accelerometer"), [0, 1000, 0]); // the other pages set the values now
        }

        function test_sliders() {
            const expected = [0, 0, 0, 0, 0, 0];
            for (const [i, label] of ["X", "Y", "Z", "X-Rot", "Y-Rot", "Z-Rot"].entries()) {
                mouseClick(Find.find(page, item => item.text === (i < 3 ? "Move" : "Rotation")));
                const before = sent("magnetometer");
                const slider = Find.find(page, item => item.visible && item.label === label);
                Find.find(slider, item => item instanceof TextField).forceActiveFocus();
                for (const key of `0.${i + 1}`)
                    keyClick(key);
                keyClick(Qt.Key_Return);
                expected[i] = (i + 1) / 10;
                compare([...motion.displacement, ...motion.rotation], expected);
                compare(sent("magnetometer").join() !== before.join(), i >= 3, label);
            }
        }

        function test_presets() {
            const buttons = [];
            Find.find(page, item => item instanceof Button && buttons.push(item) && false);
            page.rotate([45, 45, 45]);
            const expected = [[0, 1000, 0], [-1000, 0, 0], [0, -1000, 0], [1000, 0, 0],
                              [0, 0, 1000], [0, 0, -1000]];
            compare(buttons.map(button => {
                mouseClick(button);
                return sent("accelerometer");
            }), expected);
            compare(sent("magnetometer"), [100, 300, -200]);
        }

        function test_keys_data(): var {
            return [
                {tag: "left turns elsewhere", key: Qt.Key_Left, rotation: [0, 0, -1]},
                {tag: "shift is ignored", key: Qt.Key_Right, shift: true, rotation: [0, 1, 0]},
                {tag: "down turns elsewhere", key: Qt.Key_Down, rotation: [-1, 0, 0]},
                {tag: "focus lost in move mode", start: 0, key: Qt.Key_Up, position: [0, 0.01, 0]},
                {tag: "moves beyond the limit", start: 2, key: Qt.Key_Right, position: [2, 2, 2]},
                {tag: "stuck outside", start: 2.05, key: Qt.Key_Left, position: [2.04, 2.05, 2.05]},
            ];
        }

        function test_keys(row: var) {
            if (row.start !== undefined)
                startMoving(row.start);
            keyClick(row.key, row.shift ? Qt.ShiftModifier : Qt.NoModifier);
            compare(motion.rotation, row.rotation ?? [0, 0, 0]);
            compare(motion.displacement, row.position ?? [0, 0, 0]);
            compare(sent("magnetometer").join() !== "100,200,300", row.rotation !== undefined);
        }

        function test_control() {
            keyPress(Qt.Key_Up, Qt.ControlModifier);
            verify(!page.rotationMode);
            compare(motion.displacement, [0, 0.01, 0]);
            keyRelease(Qt.Key_Up, Qt.ControlModifier);
            verify(page.rotationMode);

            mouseClick(Find.find(page, item => item instanceof TextField));
            keyPress(Qt.Key_V, Qt.ControlModifier);
            verify(page.rotationMode); // pasting does not change the mode
        }

        function test_gyroscope() {
            compare(sampled(() => page.rotate([0, 0, 5])), [0, 0, 50]);
            compare(sampled(() => {}), [0, 0, 0]);
            compare(sampled(() => page.rotate([0, 0, 180])), [0, 0, 1750]);
            compare(sampled(() => {
                page.active = true;
                keyClick(Qt.Key_Right);
                compare(motion.rotation[2], 181);
                keyClick(Qt.Key_Up);
            }), [-10, 0, 0]); // -180 is the same as 180, and x is reversed there
            compare(sampled(() => page.rotate([500, 0, -180])), [-3000, 0, 0]);
        }

        function test_move() {
            startMoving(0.1); // a move of 0.006 m in 0.1 s
            const readings = [0, 1, 2].map(() => {
                motion.sample();
                return sent("accelerometer");
            });
            compare(readings, [[122, 1122, 122], [-122, 877, -122], [0, 1000, 0]]);
            page.rotate([0, 0, 90]);
            compare([sent("accelerometer"), sent("magnetometer")],
                    [[1000, 0, 0], [100, 200, 300]]);
        }

        function test_states_data(): var {
            return ["accelerometer", "gyroscope", "magnetometer"].map(name => ({tag: name}));
        }

        function test_states(row: var) {
            const title = new RegExp(`^${row.tag} \\(`, "i");
            const label = Find.find(page, item => title.test(item.text));
            sensorsEmulationManager.setSensorEnabled(row.tag, false);
            verify(label.visible && !label.enabled);
            host.setSensorAvailable(row.tag, false);
            sensorsEmulationManager.setSensorEnabled(row.tag, true); // must have no effect
            sensorsEmulationManager.setGyroscopeX(1);
            verify(!label.visible);
            const before = sent(row.tag);
            page.rotate([30, 30, 30]);
            motion.sample();
            page.active = false;
            page.active = true;
            compare(sent(row.tag), before);
        }

        function test_mouseMoves() {
            startMoving(0);
            mousePress(area, 100, 100);
            mouseMove(area, 100 + area.width / 6, 100 + area.height / 8);
            mouseMove(area, 100 + area.width / 2, 100 + area.height / 8);
            fuzzyCompare(motion.displacement[0], 1, 0.02); // 3 is beyond the limit
            mouseMove(area, 100 + area.width / 3, 100 + area.height / 8);
            mouseRelease(area, 100 + area.width / 3, 100 + area.height / 8);
            [2, -0.5, 0].forEach((value, i) => fuzzyCompare(motion.displacement[i], value, 0.02));
            for (const [angle, z] of [[60, 0], [60, 0.2], [-360, -0.4], [-1200, -2]]) {
                mouseWheel(area, 10, 10, 0, angle);
                fuzzyCompare(motion.displacement[2], z, 1e-9);
            }
            compare(motion.rotation, [0, 0, 0]);
        }

        // The turn of a drag by the rule: half the way about the axes across it. A drag that passes the
        // origin's vertical line also turns about z, by half the angle that it spans at the origin.
        function expectedTurn(origin: var, from: var, to: var): var {
            const [fromX, fromY, toX, toY] = [from[0] - origin[0], from[1] - origin[1],
                                              to[0] - origin[0], to[1] - origin[1]];
            const passes = (fromX >= 0) !== (toX >= 0);
            const angle = Math.abs(Math.atan2(fromX * toY - fromY * toX,
                                              fromX * toX + fromY * toY)) * 180 / Math.PI;
            const damping = Math.abs(toY) > 30 ? 1 : Math.sin(Math.abs(toY) * Math.PI / 180);
            const sign = Math.sign(toY - fromY) * (fromX >= 0 ? 1 : -1);
            return [(toY - fromY) / 2, (toX - fromX) / 2, passes ? sign * damping * angle / 2 : 0];
        }

        function test_mouseTurns_data(): var {
            return [
                {tag: "near side does not follow", path: [[20, -90], [20, -50], [20, -30]]},
                {tag: "turned about the device's axes", path: [[20, 0], [120, 0], [120, 70], [90, 70]]},
                {tag: "z turned elsewhere", path: [[60, -80], [-60, -90], [-60, 70], [50, 120]]},
                {tag: "not damped near the origin", path: [[60, -10], [-70, -15]]},
                {tag: "closed path", path: [[80, -80], [-80, -90], [-80, 80], [80, 90], [80, -80]]},
                {tag: "origin does not follow", position: [1.5, -1, 0.2],
                 path: [[60, -80], [-60, -90], [-60, 70], [50, 120]]},
            ];
        }

        // The path is relative to the origin.
        function test_mouseTurns(row: var) {
            const [x, y, z] = row.position ?? [0, 0, 0];
            motion.displacement = [x, y, z];
            const origin = [area.width / 2 + x * area.width / (8 + 8 * z),
                            area.height / 2 - y * area.height / (4 + 4 * z)].map(Math.round);
            let expected = Quaternions.attitude([0, 0, 0]);
            const path = row.path.map(point => point.map((part, i) => origin[i] + part));
            mousePress(area, ...path[0]);
            path.slice(1).forEach((to, i) => {
                mouseMove(area, ...to);
                expected = Quaternions.turned(expected, expectedTurn(origin, path[i], to));
            });
            mouseRelease(area, ...path[path.length - 1]);
            // the rule rounds the cosine of the angle at the origin
            const tolerance = 1.5;
            verify(Quaternions.difference(Quaternions.attitude(motion.rotation), expected)
                   < tolerance);
            verify(motion.rotation.some(angle => Math.abs(angle) > 5));
            mouseDoubleClickSequence(area, 20, 20);
            compare([motion.rotation, sent("accelerometer")], [[0, 0, 0], [0, 1000, 0]]);
        }
    }
}
