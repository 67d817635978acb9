import QtQuick
import QtQuick.Controls
import QtTest

import "qrc:/emulationmanagement/qml"
import "qrc:/emulationmanagement/qml/sensors"
import "qrc:/emulationmanagement/qml/shared"

import "find.js" as Find

Item {
    id: root

    width: 1000
    height: 600

    Component {
        id: component

        SensorsValuesPage {
            function sensor(name: string): SensorControls {
                return Find.find(this, item => item instanceof SensorControls
                                               && item.sensorName === name);
            }

            anchors.fill: parent
            active: true
        }
    }

    TestCase {
        id: test

        property SensorsValuesPage page

        name: "SensorsValuesPage"
        when: windowShown

        function init() {
            failOnWarning(/.*/);
            host.reset();
            page = createTemporaryObject(component, root);
            verify(page);
        }

        function axis(name: string, index: int): SliderWithTextField {
            const axes = [];
            Find.find(page.sensor(name), item => {
                if (item instanceof SliderWithTextField)
                    axes.push(item);
                return false;
            });
            return axes[index];
        }

        function type(control: SliderWithTextField, text: string): TextField {
            const field = Find.find(control, item => item instanceof TextField);
            mouseClick(field);
            for (const character of text)
                keyClick(character);
            return field;
        }

        function test_accelerometer_data(): var {
            return [
                {tag: "x goes elsewhere", axis: "x", text: "1.5", value: 1500, shown: "1.500"},
                {tag: "y goes elsewhere", axis: "y", text: "-0.7", value: -700, shown: "-0.700"},
                {tag: "z goes elsewhere", axis: "z", text: "3", value: 3000, shown: "3.000"},
                {tag: "1.001 cut off", axis: "x", text: "1.001", value: 1001, shown: "1.001"},
                {tag: "more than 3 g is sent", axis: "x", text: "3.5", value: 3000, shown: "3.000"},
            ];
        }

        function test_accelerometer(row: var) {
            const control = axis("accelerometer", ["x", "y", "z"].indexOf(row.axis));
            const field = type(control, row.text);
            keyClick(Qt.Key_Return);
            const model = sensorsEmulationManager.accelerometer;
            const expected = Object.assign({x: 0, y: 0, z: 1000}, {[row.axis]: row.value});
            compare({x: model.x, y: model.y, z: model.z}, expected);
            compare(field.text, row.shown);
            const acceleration = (row.value * 9.80665 / 1000).toFixed(3) + " m/s²";
            for (const text of ["g", "=", acceleration])
                verify(Find.find(control, item => item.text === text && item.visible), text);
        }

        function shown(): var {
            return [0, 1, 2].map(index => Find.find(axis("accelerometer", index),
                                                    item => item instanceof TextField).text);
        }

        function test_resetValues() {
            const field = type(axis("accelerometer", 0), "2");
            keyClick(Qt.Key_Return);
            sensorsEmulationManager.setAccelerometerValues(1500, -2000, 250);
            compare(shown(), ["1.500", "-2.000", "0.250"]);
            type(axis("accelerometer", 0), "-");
            const button = Find.find(page, item => item instanceof Button
                                                   && item.text === "Reset values");
            mouseClick(button);
            const model = sensorsEmulationManager.accelerometer;
            compare([model.x, model.y, model.z], [0, 0, 1000]);
            compare(shown(), ["0.000", "0.000", "1.000"]);

            type(axis("accelerometer", 0), "2");
            button.clicked(); // without taking the focus
            compare(shown(), ["0.000", "0.000", "1.000"]);
            verify(!field.activeFocus);
        }

        function test_lightLevel_data(): var {
            return [
                {tag: "level above taken", lux: 79, level: "Twilight"},
                {tag: "level missed at its lux", lux: 80, level: "Light"},
                {tag: "nothing above the last level", lux: 3000, level: "Sunny"},
                {tag: "first level missed", lux: -1, level: "Undefined"},
                {tag: "choice lost below the first level", lux: -2, level: "Dark"},
            ];
        }

        function test_lightLevel(row: var) {
            sensorsEmulationManager.setAlsLuxValue(0);
            sensorsEmulationManager.setAlsLuxValue(row.lux);
            compare(Find.find(page.sensor("als"), item => item instanceof ComboBox).displayText,
                    row.level);
        }

        function test_combos_data(): var {
            return [
                {tag: "orientation is off by one", sensor: "orientation", keys: 1,
                 result: () => sensorsEmulationManager.orientation.orientation, value: 6},
                {tag: "tap direction is off by one", sensor: "tap", keys: 3,
                 result: () => sensorsEmulationManager.tap.tapDirection, value: 2},
                {tag: "level is not its lux", sensor: "als", keys: 2,
                 result: () => sensorsEmulationManager.als.lux, value: 2500},
            ];
        }

        function test_combos(row: var) {
            Find.find(page.sensor(row.sensor), item => item instanceof ComboBox).forceActiveFocus();
            for (let i = 0; i < row.keys; ++i)
                keyClick(Qt.Key_Down);
            compare(row.result(), row.value);
        }

        function test_doubleClick() {
            const manager = sensorsEmulationManager;
            for (const tap of [-1, 8]) { // the list opens above its box, and over it
                manager.setTapSensorValue(tap);
                for (const sensor of ["tap", "als", "orientation"]) {
                    const box = Find.find(page.sensor(sensor), item => item instanceof ComboBox);
                    mouseDoubleClickSequence(box);
                    compare([manager.tap.tapDirection, manager.als.lux, manager.accelerometer.z],
                            [tap, 100, 1000], sensor);
                    tryVerify(() => !box.popup.visible);
                }
            }
        }

        // Also when the page is too small for that: what has the focus is scrolled into view.
        function test_tabOrder_data(): var {
            return [
                { tag: "all in view", width: 1000, height: 600 },
                { tag: "scrolling", width: 300, height: 200 },
            ];
        }

        function test_tabOrder(row: var) {
            page.anchors.fill = null;
            page.width = row.width;
            page.height = row.height;
            const first = Find.find(page.sensor("accelerometer"), item => item instanceof Slider);
            first.forceActiveFocus(Qt.TabFocusReason);
            const titles = [];
            for (let focused = first; focused.text !== qsTr("Reset values");
                 focused = Window.activeFocusItem) {
                waitForRendering(page);
                const centre = focused.mapToItem(page, focused.width / 2, focused.height / 2);
                verify(centre.x > 0 && centre.x < row.width, `${titles} ${centre}`);
                verify(centre.y > 0 && centre.y < row.height, `${titles} ${centre}`);
                verify(focused instanceof Button || focused.Accessible.name !== "", `${titles}`);
                let frame = focused;
                while (!(frame instanceof SensorControls))
                    frame = frame.parent;
                titles.push(frame.title);
                keyClick(Qt.Key_Tab);
            }
            compare(titles.map(title => title.replace(" Sensor", "")).join(" "),
                    "Accelerometer ".repeat(6) + "Magnetometer ".repeat(8) + "Compass ".repeat(4)
                    + "Magnetic Field ".repeat(6) + "Orientation " + "Gyroscope ".repeat(6)
                    + "Light ".repeat(3) + "Proximity ".repeat(4) + "Tap");
        }

        function test_states() {
            const control = page.sensor("accelerometer");
            for (const on of [false, true]) {
                host.setSensorAvailable("accelerometer", on);
                compare(control.visible, on);
            }
            for (const on of [false, true]) {
                sensorsEmulationManager.setSensorEnabled("accelerometer", on);
                verify(control.visible);
                compare(control.enabled, on);
            }
        }

        function test_modelSensorChanged_data(): var {
            const setters = ["setCompassAzimuth", "setAlsLuxValue", "setTapSensorValue"];
            for (const sensor of ["Accelerometer", "Magnetometer", "MagneticField", "Gyroscope"])
                setters.push(...["X", "Y", "Z"].map(axis => `set${sensor}${axis}`));
            // light and taps do not come from the model
            return setters.map(setter => ({tag: setter, changed: !/Als|Tap/.test(setter)}));
        }

        function test_modelSensorChanged(row: var) {
            sensorsEmulationManager[row.tag](1);
            compare(page.modelSensorChanged, row.changed);
        }

        function test_modelSensorForgotten_data(): var {
            return [
                {tag: "kept when shown again", forget: () => page.active = true, changed: false},
                {tag: "kept after initialisation",
                 forget: () => sensorsEmulationManager.sensorsInitialized(), changed: false},
                {tag: "lost when left", forget: () => {}, changed: true},
            ];
        }

        function test_modelSensorForgotten(row: var) {
            sensorsEmulationManager.setGyroscopeX(1);
            page.active = false;
            row.forget();
            compare(page.modelSensorChanged, row.changed);
        }
    }
}
