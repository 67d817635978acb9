pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

// Sliders for x, y and z, one below the other. The properties mean what they mean to a
// SliderWithTextField.
ColumnLayout {
    id: root

    required property list<real> values // x, y and z
    required property list<string> labels
    required property double minValue
    required property double maxValue
    required property double stepSize
    required property int numberRoundingSize
    property bool integer: false
    property real labelWidth: Math.max(...labels.map(label => metrics.advanceWidth(label)))
    property double resultValueMultiplier: 1.0
    property string valueUnits: ""
    property bool showCalculatedValue: false
    property double calculatedValueFactor: 1.0 // from a value to its calculated value
    property string calculatedValueUnits: ""

    // The user chose another value for one of the axes.
    signal xSubmitted(value: double)
    signal ySubmitted(value: double)
    signal zSubmitted(value: double)

    function clearFocus() {
        for (const axis of [xAxis, yAxis, zAxis])
            axis.textFieldFocus = false;
    }

    component Axis: SliderWithTextField {
        required property int index

        Layout.fillWidth: true
        calculatedValue: value * root.calculatedValueFactor
        calculatedValueUnits: root.calculatedValueUnits
        equalityLabelShow: root.showCalculatedValue
        integer: root.integer
        label: root.labels[index]
        labelWidth: root.labelWidth
        maxValue: root.maxValue
        minValue: root.minValue
        modelValue: root.values[index]
        numberRoundingSize: root.numberRoundingSize
        resultValueMultiplier: root.resultValueMultiplier
        showCalculatedValue: root.showCalculatedValue
        stepSize: root.stepSize
        valueUnits: root.valueUnits
    }

    spacing: 2

    FontMetrics {
        id: metrics
    }

    Axis {
        id: xAxis

        index: 0

        onSliderSubmited: value => root.xSubmitted(value)
    }

    Axis {
        id: yAxis

        index: 1

        onSliderSubmited: value => root.ySubmitted(value)
    }

    Axis {
        id: zAxis

        index: 2

        onSliderSubmited: value => root.zSubmitted(value)
    }
}
