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
            sensorsEmulationManager.setMagneticFieldValues(0, 5.95, -48.76);
            page = createTemporaryObject(component, root);
        }

        // The items below another one that accept() is true for.
        function all(item: Item, accept: var): var {
            const result = [];
            Find.find(item, child => accept(child) && result.push(child) && false);
            return result;
        }

        function frames(accept: var): var {
            return all(page, item => item instanceof SensorControls).filter(accept ?? (() => true));
        }

        function control(title: string, index: int): Item {
            return all(frames(frame => frame.title === title)[0], item => item instanceof TextField
                       || item instanceof ComboBox || item instanceof Button)[index];
        }

        // All values of the models without floating-point errors, and the light level on the page.
        function readings(): var {
            const manager = sensorsEmulationManager;
            const xyz = ({x, y, z}) => [x, y, z].map(value => Math.round(value * 1e9) / 1e9);
            return {
                accelerometer: xyz(manager.accelerometer), gyroscope: xyz(manager.gyroscope),
                magnetometer: xyz(manager.magnetometer), field: xyz(manager.magneticField),
                azimuth: manager.compass.azimuth, orientation: manager.orientation.orientation,
                levels: [manager.magnetometer.calibrationLevel, manager.compass.calibrationLevel],
                lux: manager.als.lux, reflectance: manager.proximity.reflectance,
                tap: manager.tap.tapDirection, level: control("Light Sensor", 1).displayText};
        }

        function test_controls_data(): var {
            return [
                ["Accelerometer", 0, "1.001", {accelerometer: [1001, 0, 1000], orientation: 4}],
                ["Accelerometer", 0, "3.5", {accelerometer: [3000, 0, 1000], orientation: 4}],
                ["Accelerometer", 1, "-0.7", {accelerometer: [0, -700, 1000], orientation: 2}],
                ["Accelerometer", 2, "2", {accelerometer: [0, 0, 2000]}],
                ["Magnetometer", 0, "-25", {magnetometer: [-2.5e-5, 0, 0], azimuth: 90}],
                ["Magnetometer", 1, "43", {magnetometer: [4.3e-5, 4.3e-5, 0], azimuth: 315}],
                ["Magnetometer", 2, "65", {magnetometer: [4.3e-5, 0, 6.5e-5]}],
                ["Magnetometer", 3, "2", {levels: [2, 2]}],
                ["Compass", 0, "90", {magnetometer: [-4.3589e-5, 0, 0], azimuth: 90}],
                ["Compass", 1, "3", {levels: [3, 3]}],
                ["Magnetic Field", 0, "1", {field: [1, 5.95, -48.76]}],
                ["Magnetic Field", 1, "2", {field: [0, 2, -48.76]}],
                ["Magnetic Field", 2, "3", {field: [0, 5.95, 3]}],
                ["Orientation Sensor", 0, "v",
                 {accelerometer: [0, 0, -300], azimuth: 90, orientation: 6}],
                ["Gyroscope", 0, "1", {gyroscope: [1, 0, 1.145915590]}],
                ["Gyroscope", 1, "-25", {gyroscope: [0, -25, 1.145915590]}],
                ["Gyroscope", 2, "3", {gyroscope: [0, 0, 3]}],
                ["Light Sensor", 0, "79", {lux: 79, level: "Twilight"}],
                ["Light Sensor", 0, "80", {lux: 80}],
                ["Light Sensor", 0, "3000", {lux: 3000, level: "Sunny"}],
                ["Light Sensor", 0, "-1", {lux: -1, level: "Undefined"}],
                ["Light Sensor", 1, "vv", {lux: 2500, level: "Sunny"}],
                ["Proximity Sensor", 0, "7", {reflectance: 7}],
                ["Proximity Sensor", 1, " ", {reflectance: 0}],
                ["Proximity Sensor", 2, " ", {reflectance: 10}],
                ["Tap Sensor", 0, "vvv", {tap: 2}],
            ].map(([title, index, keys, changes]) => ({
                tag: `control ${index} of ${title} has another effect after "${keys}"`,
                title, index, keys, changes}));
        }

        function test_controls(row: var) {
            const before = readings();
            const focused = control(row.title, row.index);
            focused.forceActiveFocus(Qt.TabFocusReason);
            for (const key of row.keys)
                keyClick(key === "v" ? Qt.Key_Down : key);
            if (focused instanceof TextField)
                keyClick(Qt.Key_Return);
            compare(readings(), Object.assign({}, before, row.changes));
            page.active = false; // the view asks after the page was left
            compare(page.modelSensorChanged,
                    /accelerometer|magnetometer|field|gyroscope/.test(Object.keys(row.changes)));
            page.active = true;
            verify(!page.modelSensorChanged);

            focused.forceActiveFocus();
            Find.find(page, item => item.text === "Reset values").clicked(); // takes no focus
            verify(!focused.activeFocus || !(focused instanceof TextField));
            sensorsEmulationManager.setMagneticFieldValues(...before.field);
            compare(readings(), before);
            verify(page.modelSensorChanged);
            sensorsEmulationManager.sensorsInitialized();
            verify(!page.modelSensorChanged);
        }

        // The texts of an item and all below it.
        function shown(item: Item): string {
            return item.displayText ?? item.text ?? Array.from(item.children).filter(
                child => child.visible).map(shown).filter(text => text !== "").join(" ");
        }

        function test_shown() {
            compare(frames().map(shown), [
                "X 0.000 g = 0.000 m/s² Y 0.000 g = 0.000 m/s² Z 1.000 g = 9.807 m/s² "
                + "Accelerometer",
                "X 43.000 μT Y 0.000 μT Z 0.000 μT Calib. level 0 Magnetometer",
                "Azimuth 270 Calib. level 0 Compass",
                "X 0.000 μT Y 5.950 μT Z -48.760 μT Magnetic Field",
                "Orientation FaceUp Orientation Sensor",
                "X 0.000 deg/s Y 0.000 deg/s Z 1.146 deg/s Gyroscope",
                "100 lx Light level Light Light Sensor",
                "Reflectance 5 0.48876  Near Far Proximity Sensor",
                "Direction Undefined Tap Sensor"]);
            sensorsEmulationManager.setAlsLuxValue(-2); // below the first level: the choice stays
            compare(readings().level, "Light");
        }

        function test_doubleClick() {
            for (const tap of [-1, 8]) { // the list opens above its box, and over it
                sensorsEmulationManager.setTapSensorValue(tap);
                const before = readings();
                for (const box of all(page, item => item instanceof ComboBox)) {
                    mouseDoubleClickSequence(box);
                    compare(readings(), before);
                    tryVerify(() => !box.popup.visible);
                }
            }
        }

        // Each control that gets the focus must be in view, also on a page that scrolls.
        function test_tabOrder_data(): var {
            return [{tag: "order is lost", width: 1000, height: 600},
                    {tag: "focus is out of view", width: 300, height: 200}];
        }

        function test_tabOrder(row: var) {
            page.anchors.fill = null;
            page.width = row.width;
            page.height = row.height;
            const first = Find.find(page, item => item instanceof Slider);
            first.forceActiveFocus(Qt.TabFocusReason);
            const titles = [];
            for (let focused = first; focused.text !== qsTr("Reset values");
                 focused = Window.activeFocusItem) {
                waitForRendering(page);
                const centre = focused.mapToItem(page, focused.width / 2, focused.height / 2);
                verify(page.contains(centre), `${titles} ${centre}`);
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
            const titles = {
                accelerometer: "Accelerometer", als: "Light Sensor", compass: "Compass",
                gyroscope: "Gyroscope", magnetometer: "Magnetometer,Magnetic Field",
                orientation: "Orientation Sensor", proximity: "Proximity Sensor",
                tap: "Tap Sensor"};
            const hidden = () => frames(frame => !frame.visible).map(frame => frame.title).join();
            const disabled = () => frames(frame => !frame.enabled).map(frame => frame.title).join();
            for (const name in titles) {
                host.setSensorAvailable(name, false);
                sensorsEmulationManager.setSensorEnabled(name, true);
                compare(hidden(), titles[name]);
                host.setSensorAvailable(name, true);
                sensorsEmulationManager.setSensorEnabled(name, false);
                compare([hidden(), disabled()], ["", titles[name]]);
                sensorsEmulationManager.setSensorEnabled(name, true);
            }
        }
    }
}
