import QtQuick

import "../shared"

// How well the magnetometer is calibrated, which the compass tells too.
SliderWithTextField {
    id: root

    required property int modelValue

    integer: true
    label: qsTr("Calib. level")
    maxValue: 3
    minValue: 0
    stepSize: 1

    Binding on value {
        value: root.modelValue
    }
}
