import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A slider with a field for the same number. The control's value is in the model's unit; what the
// user sees and types is that value divided by resultValueMultiplier.
RowLayout {
    id: root

    // What stands before the slider, and how wide it is at least, for sliders below each other.
    property string label: ""
    property real labelWidth: 0
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
    property double value: 0.0
    property alias textFieldFocus: textField.focus

    readonly property var numberLocale: Qt.locale("en_US")
    readonly property string valueText: integer ? String(Math.round(slider.value))
                                                : formatted(slider.value)

    // The user chose another value, in the model's unit.
    signal sliderSubmited(value: double)

    function formatted(number: double): string {
        const scale = Math.pow(10, numberRoundingSize);
        const rounded = Math.round(number * scale) / scale; // no "-0.000"
        return rounded.toLocaleString(numberLocale, "f", numberRoundingSize);
    }

    function submit(sliderValue: double) {
        value = sliderValue * resultValueMultiplier;
        sliderSubmited(value);
    }

    function submitText() {
        submit(Number.fromLocaleString(numberLocale, textField.text));
        textField.text = valueText;
    }

    Accessible.name: label
    spacing: 6

    Label {
        Layout.minimumWidth: Math.max(implicitWidth, root.labelWidth)
        text: root.label
        visible: text !== ""
    }

    Slider {
        id: slider

        Accessible.name: root.label
        Layout.fillWidth: true
        Layout.minimumWidth: 60
        from: root.minValue
        to: root.maxValue
        stepSize: root.stepSize
        value: root.value / root.resultValueMultiplier

        onMoved: root.submit(value)
    }

    NumberField {
        id: textField

        Accessible.name: root.label
        // room for a sign, three digits, three decimals and the cursor
        Layout.preferredWidth: metrics.advanceWidth("-000.000 ") + leftPadding + rightPadding
        decimals: root.numberRoundingSize
        integer: root.integer
        maxValue: root.maxValue
        minValue: root.minValue
        text: root.valueText

        onAccepted: root.submitText()
        onActiveFocusChanged: {
            if (activeFocus)
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

    // Typing replaces the field's binding, so it is told of every other change.
    onValueTextChanged: textField.text = valueText
}
