import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import "../shared"
import "../../js/location/number-texts.js" as NumberTexts

// A field for one number of a position. A text that is not a number is replaced by the last number.
RowLayout {
    id: root

    property string label: ""
    property alias minValue: textField.minValue
    property alias maxValue: textField.maxValue
    property alias decimals: textField.decimals

    property string lastNumber: "0"

    // The user pressed Enter.
    signal submitted(value: double)

    function value(): double {
        keepNumber();
        return NumberTexts.numberOf(lastNumber);
    }

    function keepNumber() {
        if (textField.acceptableInput)
            lastNumber = textField.text;
        else
            textField.text = lastNumber;
    }

    spacing: 6

    Label {
        text: root.label
    }

    NumberField {
        id: textField

        Accessible.name: root.label
        Layout.fillWidth: true
        Layout.maximumWidth: 20 * metrics.averageCharacterWidth + leftPadding + rightPadding
        text: "0"

        onAccepted: root.submitted(root.value())
        onActiveFocusChanged: {
            if (!activeFocus)
                root.keepNumber();
        }

        FontMetrics {
            id: metrics

            font: textField.font
        }
    }
}
