import QtQuick
import QtQuick.Controls
import QtTest

import "qrc:/emulationmanagement/qml/shared"

import "find.js" as Find

Item {
    id: root

    width: 600
    height: 100

    TextField {
        id: elsewhere

        y: 50
    }

    Component {
        id: component

        SliderWithTextField {
            readonly property Slider slider: Find.find(this, item => item instanceof Slider)
            readonly property TextField field: Find.find(this, item => item instanceof TextField)
            property var sent: []

            width: 500
            maxValue: 3
            minValue: -3
            numberRoundingSize: 3
            resultValueMultiplier: 1000
            stepSize: 0.001
            onSliderSubmited: value => sent.push(value)
        }
    }

    TestCase {
        name: "SliderWithTextField"
        when: windowShown

        function init() {
            failOnWarning(/.*/);
        }

        function create(properties: var): SliderWithTextField {
            return createTemporaryObject(component, root, properties ?? {});
        }

        function type(control: SliderWithTextField, text: string) {
            control.field.forceActiveFocus();
            keyClick(Qt.Key_A, Qt.ControlModifier);
            keyClick(Qt.Key_Delete);
            for (const character of text)
                keyClick(character);
        }

        function drag(control: SliderWithTextField, dx: real) {
            const handle = control.slider.handle;
            const x = handle.x + handle.width / 2;
            const y = control.slider.height / 2;
            mouseDrag(control.slider, x, y, dx, 0);
        }

        function test_typed_data(): var {
            const kept = {value: 1500.4, shown: "1.500", sent: 0, properties: {value: 1500.4}};
            return [
                {tag: "text lost with focus", text: "1.5", value: 1500, shown: "1.500"},
                {tag: "unfinished fraction lost", text: "1.", value: 1000, shown: "1.000"},
                Object.assign({tag: "empty text sent", text: ""}, kept),
                Object.assign({tag: "lone sign sent", key: Qt.Key_Return, text: "-"}, kept),
                Object.assign({tag: "untouched text sent", key: Qt.Key_Tab}, kept),
            ];
        }

        function test_typed(row: var) {
            const control = create(row.properties);
            if (row.text === undefined)
                control.field.forceActiveFocus();
            else
                type(control, row.text);
            compare(control.sent, []);
            if (row.key)
                keyClick(row.key);
            elsewhere.forceActiveFocus();
            compare(control.sent.length, row.sent ?? 1);
            fuzzyCompare(control.value, row.value, Math.abs(row.value) * 1e-9);
            compare(control.sent.pop() ?? control.value, control.value);
            compare(control.field.text, row.shown);
        }

        function test_refusedKey() {
            const control = create({maxValue: 30});
            type(control, "1");
            verify(!control.field.refused);
            type(control, "1,5");
            compare(control.field.text, "15");
            verify(Find.find(control.field, item => item.visible && item.border?.width === 2));
            verify(Find.find(Window.contentItem, item => item instanceof Label
                                                         && item.text.includes("from -3 to 30")));
        }

        function test_drag_data(): var {
            return [
                {tag: "multiplier lost", properties: {}},
                {tag: "parts of a step sent",
                 properties: {integer: true, numberRoundingSize: 0, resultValueMultiplier: 1,
                              minValue: 0, maxValue: 7, stepSize: 1}},
            ];
        }

        // At every stop on the way, the value that is sent is that of the field and of the handle.
        function test_drag(row: var) {
            const control = create(row.properties);
            for (const dx of [91, 87, -73]) {
                control.sent = [];
                drag(control, dx);
                verify(control.sent.length > 0);
                verify(control.sent.every((value, i) => value !== control.sent[i - 1]));
                fuzzyCompare(control.slider.valueAt(control.slider.position),
                             control.value / control.resultValueMultiplier, 1e-9);
                fuzzyCompare(control.value,
                             Number(control.field.text) * control.resultValueMultiplier, 1e-9);
                compare(control.sent.pop(), control.value);
                if (control.integer)
                    compare(control.value, Math.round(control.value));
            }
        }

        function test_handleClicked() {
            const control = create({value: 1500.4});
            const slider = control.slider;
            const x = slider.handle.x + slider.handle.width / 2;
            for (const dx of [-4, 0, 4]) {
                mouseClick(slider, x + dx, slider.height / 2);
                compare([control.sent, control.value, control.field.text], [[], 1500.4, "1.500"]);
            }
            mouseDrag(slider, x - 4, slider.height / 2, -1, 0);
            compare(control.sent.length, 1);
            keyClick(Qt.Key_Right); // only clicks on the handle are ignored
            compare(control.sent.length, 2);
        }

        function test_changedFromOutside_data(): var {
            return [
                {tag: "ignored after typing", text: "1.5"},
                {tag: "ignored after a refused text", text: "-"},
                {tag: "ignored after dragging"},
            ];
        }

        function test_changedFromOutside(row: var) {
            const control = create();
            if (row.text)
                type(control, row.text);
            else
                drag(control, 50);
            elsewhere.forceActiveFocus();
            control.sent = [];
            for (const value of [-2001, 0, 0, 2999]) {
                control.modelValue = value;
                fuzzyCompare(control.slider.value, value / 1000, 1e-9);
                compare(control.field.text, (value / 1000).toFixed(3));
            }
            compare(control.sent, []); // otherwise control and model would change each other
        }

        function test_calculatedValue() {
            const control = create({calculatedValue: -0.0004, calculatedValueUnits: "m/s²",
                                    showCalculatedValue: true});
            verify(Find.find(control, item => item.text === "0.000 m/s²"), "minus zero");
        }
    }
}
