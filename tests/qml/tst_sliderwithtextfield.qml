import QtQuick
import QtQuick.Controls
import QtTest

import "qrc:/emulationmanagement/qml"

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

        function confirm(by: string) {
            if (by === "focus")
                elsewhere.forceActiveFocus();
            else
                keyClick(Qt.Key_Return);
        }

        function test_typed_data(): var {
            const micro = {resultValueMultiplier: 0.000001, minValue: -65, maxValue: 65};
            const whole = {integer: true, numberRoundingSize: 0, resultValueMultiplier: 1,
                           minValue: 0, maxValue: 359};
            return [
                {tag: "Return ignored", by: "Return", text: "1.5", value: 1500, shown: "1.500"},
                {tag: "lost with focus", by: "focus", text: "1.5", value: 1500, shown: "1.500"},
                {tag: "sign lost", by: "Return", text: "-0.25", value: -250, shown: "-0.250"},
                {tag: "unfinished fraction lost", by: "focus", text: "1.", value: 1000,
                 shown: "1.000"},
                {tag: "small unit lost", by: "Return", text: "25", value: 2.5e-5, shown: "25.000",
                 properties: micro},
                {tag: "whole number shown as fraction", by: "Return", text: "123", value: 123,
                 shown: "123", properties: whole},
            ];
        }

        function test_typed(row: var) {
            const control = create(row.properties);
            type(control, row.text);
            compare(control.sent, []);
            confirm(row.by);
            elsewhere.forceActiveFocus();
            compare(control.sent.length, 1);
            fuzzyCompare(control.sent[0], row.value, Math.abs(row.value) * 1e-9);
            compare(control.value, control.sent[0]);
            compare(control.field.text, row.shown);
        }

        function test_refusedKeys_data(): var {
            return [
                {tag: "above the range", text: "3.5", left: "3."},
                {tag: "below the range", text: "-3.001", left: "-3.00"},
                {tag: "comma dropped without a sign", text: "1,5", left: "15",
                 properties: {maxValue: 30}},
            ];
        }

        function test_refusedKeys(row: var) {
            const control = create(row.properties);
            type(control, "1");
            verify(!control.field.refused);
            type(control, row.text);
            compare(control.field.text, row.left);
            verify(Find.find(control.field, item => item.visible && item.border?.width === 2));
            const range = `from ${control.minValue} to ${control.maxValue}`;
            verify(Find.find(Window.contentItem, item => item instanceof Label
                                                         && item.text.includes(range)));
        }

        function test_unusableText_data(): var {
            return [
                {tag: "empty text sent", text: ""},
                {tag: "lone sign sent", text: "-"},
                {tag: "untouched text sent", by: Qt.Key_Tab, value: 1500.4},
            ];
        }

        function test_unusableText(row: var) {
            const value = row.value ?? 1500;
            const control = create({value});
            if (row.text === undefined)
                control.field.forceActiveFocus();
            else
                type(control, row.text);
            keyClick(row.by ?? Qt.Key_Return);
            elsewhere.forceActiveFocus();
            compare(control.field.text, "1.500");
            compare(control.value, value);
            compare(control.sent, []);
        }

        function test_drag_data(): var {
            return [
                {tag: "multiplier lost", properties: {}},
                {tag: "parts of a step sent",
                 properties: {integer: true, numberRoundingSize: 0, resultValueMultiplier: 1,
                              minValue: 0, maxValue: 7, stepSize: 1}},
            ];
        }

        // What is sent is what the field shows, at every stop on the way, and where the handle is.
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
            keyClick(Qt.Key_Right); // a key is no click
            compare(control.sent.length, 2);
        }

        function test_changedFromOutside_data(): var {
            return [
                {tag: "ignored after typing", before: control => {
                    type(control, "1.5");
                    keyClick(Qt.Key_Return);
                }},
                {tag: "ignored after a refused text", before: control => {
                    type(control, "-");
                    elsewhere.forceActiveFocus();
                }},
                {tag: "ignored after dragging", before: control => drag(control, 50)},
            ];
        }

        function test_changedFromOutside(row: var) {
            const control = create();
            row.before(control);
            control.sent = [];
            for (const value of [-2001, 0, 0, 2999]) {
                control.value = value;
                fuzzyCompare(control.slider.value, value / 1000, 1e-9);
                compare(control.field.text, (value / 1000).toFixed(3));
            }
            compare(control.sent, []); // or the model and the control would chase each other
        }

        function test_calculatedValue() {
            const control = create({
                calculatedValue: -9.80665, calculatedValueUnits: "m/s²", equalityLabelShow: true,
                showCalculatedValue: true, valueUnits: "g",
            });
            for (const text of ["g", "=", "-9.807 m/s²"])
                verify(Find.find(control, item => item instanceof Label && item.text === text
                                                  && item.visible), text);
            control.calculatedValue = -0.0004;
            verify(Find.find(control, item => item.text === "0.000 m/s²"), "minus zero");
        }
    }
}
