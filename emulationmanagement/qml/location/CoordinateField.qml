import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import "../shared"

// A field for one number of a position. What is no number gives way to the last one that was.
RowLayout {
    id: root

    property string label: ""
    property alias minValue: textField.minValue
    property alias maxValue: textField.maxValue
    property alias decimals: textField.decimals
    required property var locale

    property string lastNumber: "0"

    // Enter was pressed.
    signal submitted(value: double)

    function value(): double {
        keepNumber();
        return Number.fromLocaleString(locale, lastNumber);
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
