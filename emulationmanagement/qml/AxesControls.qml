pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// Controls for the x, y and z of a model, one below the other.
ColumnLayout {
    id: root

    required property var model
    property double minValue
    property double maxValue
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
            axis.clearFocus();
    }

    component Axis: RowLayout {
        id: axis

        required property string name
        required property double modelValue

        signal submited(value: double)

        function clearFocus() {
            control.textFieldFocus = false;
        }

        Layout.fillWidth: true
        spacing: 6

        Label {
            Layout.preferredWidth: metrics.maximumCharacterWidth
            text: axis.name

            FontMetrics {
                id: metrics
            }
        }

        SliderWithTextField {
            id: control

            Layout.fillWidth: true
            Accessible.name: axis.name
            calculatedValue: value * root.calculatedValueFactor
            calculatedValueUnits: root.calculatedValueUnits
            equalityLabelShow: root.showCalculatedValue
            maxValue: root.maxValue
            minValue: root.minValue
            numberRoundingSize: 3
            resultValueMultiplier: root.resultValueMultiplier
            showCalculatedValue: root.showCalculatedValue
            stepSize: 0.001
            valueUnits: root.valueUnits

            onSliderSubmited: value => axis.submited(value)

            Binding on value {
                value: axis.modelValue
            }
        }
    }

    spacing: 0

    Axis {
        id: xAxis

        name: qsTr("X")
        modelValue: root.model.x
        onSubmited: value => root.xSubmited(value)
    }

    Axis {
        id: yAxis

        name: qsTr("Y")
        modelValue: root.model.y
        onSubmited: value => root.ySubmited(value)
    }

    Axis {
        id: zAxis

        name: qsTr("Z")
        modelValue: root.model.z
        onSubmited: value => root.zSubmited(value)
    }
}
