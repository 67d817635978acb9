import QtQuick
import QtQuick.Controls
import QtTest

import "qrc:/emulationmanagement/qml"

import "find.js" as Find

Item {
    id: root

    width: 1100
    height: 600

    Component {
        id: component

        EmulationManagementView {}
    }

    TestCase {
        id: test

        readonly property int apply: 0x2000000 // QMessageBox::Apply
        readonly property int discard: 0x800000 // QMessageBox::Discard
        readonly property list<string> titles: [
            "Accelerometer", "Compass", "Orientation Sensor", "Magnetometer", "Gyroscope",
            "Light Sensor", "Proximity Sensor", "Tap Sensor"]
        property EmulationManagementView view

        name: "SensorsManagementPage"
        when: windowShown

        function init() {
            failOnWarning(/.*/);
            host.reset();
            view = createTemporaryObject(component, root);
            click("Sensors Management");
        }

        // The box or button with this text on the page, otherwise in the view.
        function find(title: string): Item {
            const accept = item => item.text === title && item.clicked !== undefined;
            return Find.find(view.pagesIds[0], accept) ?? Find.find(view, accept);
        }

        function click(title: string) {
            mouseClick(find(title));
        }

        // The first letters of the sensors whose boxes are checked, from the top to the bottom.
        function checked(): string {
            return titles.map(find).filter(box => box.checked).sort((one, other) => one.y - other.y)
                         .map(box => box.text[0]).join("");
        }

        function enabled(): string {
            const states = sensorsEmulationManager.sensorsEnabledStates;
            return Object.keys(states).filter(name => states[name]).join(" ");
        }

        function test_dependencies_data(): var {
            return [
                {tag: "compass without its sources", off: [], on: "Compass", checked: "ACM"},
                {tag: "orientation without its source", off: [], on: "Orientation Sensor",
                 checked: "AO"},
                {tag: "sources bring too much", off: [], on: "Accelerometer", checked: "A"},
                {tag: "compass outlives the magnetometer", on: "Compass", off: ["Magnetometer"],
                 checked: "A"},
                {tag: "compass outlives the accelerometer", on: "Compass", off: ["Accelerometer"],
                 checked: "M"},
                {tag: "source goes with the compass", on: "Compass", off: ["Compass"],
                 checked: "AM"},
                {tag: "missing source switched on", missing: "magnetometer", off: [],
                 on: "Compass", checked: "AC", applied: "accelerometer compass"},
            ];
        }

        function test_dependencies(row: var) {
            for (const name of Object.keys(sensorsEmulationManager.sensorsEnabledStates))
                sensorsEmulationManager.setSensorEnabled(name, false);
            if (row.missing)
                host.setSensorAvailable(row.missing, false);
            compare(checked(), "");
            click(row.on);
            row.off.forEach(click);
            compare(checked(), row.checked);
            compare(enabled(), "");
            compare(find("Magnetometer").visible, !row.missing);
            if (row.applied) {
                click("Apply");
                compare(enabled(), row.applied);
            }
        }

        function test_applyAndReset() {
            const before = enabled();
            click("Tap Sensor");
            click("Reset");
            compare(checked(), "ACOMGLPT");
            click("Tap Sensor");
            host.receive("enabled:proximity:0::");
            compare(checked(), "ACOMGL"); // the tap sensor keeps the user's choice
            host.receive("enabled:proximity:1::");
            compare(enabled(), before);
            click("Apply");
            compare(enabled(), before.replace(" tap", ""));
            host.receive("enabled:tap:1::");
            compare(checked(), "ACOMGLPT");
        }

        function test_leaving_data(): var {
            return [
                {tag: "discarded changes are applied", answer: discard, enabled: true, left: true},
                {tag: "page is left without an answer", answer: 0, enabled: true, left: false},
                {tag: "a reply unticks what is applied", answer: apply, enabled: false, left: true,
                 meanwhile: "enabled:gyroscope:1::"},
                {tag: "a reply ticks what is applied", answer: apply, enabled: false, left: true,
                 meanwhile: "enabled:tap:0::"},
            ];
        }

        function test_leaving(row: var) {
            host.answer = row.answer;
            host.meanwhile = row.meanwhile ?? "";
            click("Gyroscope");
            click("GPS Management");
            compare(host.questions,
                    ["The sensor configuration has been changed. Apply or discard changes?"]);
            const {gyroscope, tap} = sensorsEmulationManager.sensorsEnabledStates;
            compare([gyroscope, tap, checked().includes("G"), view.pagesIds[0].active],
                    [row.enabled, true, row.enabled && row.left, !row.left]);
        }
    }
}
