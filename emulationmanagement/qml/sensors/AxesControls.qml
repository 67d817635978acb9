pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

import "../shared"

// Sliders for the x, y and z of a model, one below the other.
ColumnLayout {
    id: root

    required property var model
    required property double minValue
    required property double maxValue
    property real labelWidth: 0
    property double resultValueMultiplier: 1.0
    property string valueUnits: ""
    property bool showCalculatedValue: false
    property double calculatedValueFactor: 1.0
    property string calculatedValueUnits: ""

    signal xSubmited(value: double)
    signal ySubmited(value: double)
    signal zSubmited(value: double)

    function clearFocus() {
        for (const axis of [xAxis, yAxis, zAxis])
            axis.textFieldFocus = false;
    }

    component Axis: SliderWithTextField {
        id: axis

        required property double modelValue

        Layout.fillWidth: true
        calculatedValue: value * root.calculatedValueFactor
        calculatedValueUnits: root.calculatedValueUnits
        equalityLabelShow: root.showCalculatedValue
        labelWidth: Math.max(root.labelWidth, metrics.maximumCharacterWidth)
        maxValue: root.maxValue
        minValue: root.minValue
        numberRoundingSize: 3
        resultValueMultiplier: root.resultValueMultiplier
        showCalculatedValue: root.showCalculatedValue
        stepSize: 0.001
        valueUnits: root.valueUnits

        Binding on value {
            value: axis.modelValue
        }
    }

    spacing: 0

    FontMetrics {
        id: metrics
    }

    Axis {
        id: xAxis

        label: qsTr("X")
        modelValue: root.model.x
        onSliderSubmited: value => root.xSubmited(value)
    }

    Axis {
        id: yAxis

        label: qsTr("Y")
        modelValue: root.model.y
        onSliderSubmited: value => root.ySubmited(value)
    }

    Axis {
        id: zAxis

        label: qsTr("Z")
        modelValue: root.model.z
        onSliderSubmited: value => root.zSubmited(value)
    }
}
