import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import "../../js/numbers.js" as Numbers

// A slider with a field for the same number. The user sees and types the value divided by
// resultValueMultiplier.
RowLayout {
    id: root

    property string label: "" // before the slider
    property real labelWidth: 0 // at least, so that sliders below each other can align
    property string accessibleName: label
    property bool integer: false
    property double minValue: 0.0
    property double maxValue: 1.0
    property double stepSize: 0.0
    property int numberRoundingSize: 0
    property string valueUnits: ""
    property double resultValueMultiplier: 1.0
    property bool showCalculatedValue: false
    property string calculatedValueUnits: ""
    property double calculatedValue: 0.0
    property bool equalityLabelShow: false
    property double value // in the model's unit
    // The model's property, which value follows. A binding of value itself would end when the user
    // chooses another value.
    property double modelValue: NaN
    property alias textFieldFocus: textField.focus

    readonly property var numberLocale: Qt.locale("en_US") // QML has no name for its type
    readonly property string valueText: integer ? String(Math.round(slider.value))
                                                : formatted(slider.value)

    // The user chose another value.
    signal sliderSubmited(value: double)

    function formatted(number: double): string {
        return Numbers.fixed(number, numberRoundingSize, numberLocale);
    }

    function submit(sliderValue: double) {
        value = sliderValue * resultValueMultiplier;
        sliderSubmited(value);
    }

    function submitText() {
        // A text that was not changed stands for the exact value, also for its hidden digits.
        submit(textField.text === valueText
               ? slider.value : Number.fromLocaleString(numberLocale, textField.text));
        textField.text = valueText;
    }

    Accessible.name: accessibleName
    spacing: 6

    Label {
        Layout.minimumWidth: Math.max(implicitWidth, root.labelWidth)
        text: root.label
        visible: text !== ""
    }

    Slider {
        id: slider

        // By these names, screen readers find the range.
        readonly property double minimumValue: from
        readonly property double maximumValue: to
        // Where a press on the handle, beside its middle, has moved the slider; otherwise NaN. The
        // value changes only when the pointer moves on, so that a click changes nothing.
        property double pressedPosition: NaN

        function followValue() {
            value = Qt.binding(() => root.value / root.resultValueMultiplier);
        }

        Accessible.description: root.valueUnits
        Accessible.name: root.accessibleName
        Layout.fillWidth: true
        Layout.minimumWidth: 60
        Layout.preferredWidth: 80 // leaves room for large fonts; the slider takes what is left
        from: root.minValue
        snapMode: Slider.SnapAlways
        stepSize: root.stepSize
        to: root.maxValue

        Component.onCompleted: followValue()
        onMoved: {
            if (pointer.isHandleClicked)
                pressedPosition = position;
            if (position === pressedPosition) {
                followValue();
                return;
            }
            pressedPosition = NaN;
            root.submit(value);
        }
        onPressedChanged: pressedPosition = NaN

        PointHandler {
            id: pointer

            readonly property point pressPosition: point.pressPosition
            readonly property bool isHandleClicked: active && point.position === pressPosition
                && slider.handle.contains(slider.mapToItem(slider.handle, pressPosition))
        }
    }

    NumberField {
        id: textField

        Accessible.name: root.accessibleName
        // room for a sign, three digits, three decimals and the cursor
        Layout.preferredWidth: metrics.advanceWidth("-000.000 ") + leftPadding + rightPadding
        decimals: root.numberRoundingSize
        integer: root.integer
        maxValue: root.maxValue
        minValue: root.minValue
        text: root.valueText

        onAccepted: root.submitText()
        onActiveFocusChanged: {
            if (activeFocus || text === root.valueText)
                return;
            if (acceptableInput)
                root.submitText();
            else
                text = root.valueText;
        }

        FontMetrics {
            id: metrics

            font: textField.font
        }
    }

    Label {
        Layout.minimumWidth: implicitWidth
        text: root.valueUnits
        visible: text !== ""
    }

    Label {
        text: "="
        visible: root.equalityLabelShow
    }

    Label {
        // wide enough for any value, so that the slider keeps its width
        Layout.preferredWidth: 14 * metrics.averageCharacterWidth
        horizontalAlignment: Text.AlignRight
        text: root.formatted(root.calculatedValue) + " " + root.calculatedValueUnits
        visible: root.showCalculatedValue
    }

    // Typing ends the binding of the field's text.
    onValueTextChanged: textField.text = valueText

    Binding on value {
        value: root.modelValue
        when: !isNaN(root.modelValue)
    }
}
