pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

// Sliders for x, y and z, one below the other.
ColumnLayout {
    id: root

    required property var values // [x, y, z]
    required property list<string> labels
    required property double minValue
    required property double maxValue
    required property double stepSize
    required property int numberRoundingSize
    required property bool integer

    // The user chose another value for an axis.
    signal submitted(values: var)

    component Axis: SliderWithTextField {
        id: axis

        required property int index

        Layout.fillWidth: true
        integer: root.integer
        label: root.labels[index]
        labelWidth: Math.max(...root.labels.map(label => metrics.advanceWidth(label)))
        maxValue: root.maxValue
        minValue: root.minValue
        numberRoundingSize: root.numberRoundingSize
        stepSize: root.stepSize

        onSliderSubmited: value => root.submitted(
            root.values.map((other, i) => i === axis.index ? value : other))

        Binding on value {
            value: root.values[axis.index]
        }
    }

    spacing: 0

    FontMetrics {
        id: metrics
    }

    Axis {
        index: 0
    }

    Axis {
        index: 1
    }

    Axis {
        index: 2
    }
}
