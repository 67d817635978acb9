import QtQuick
import QtQuick.Layouts

import "../shared"

// The calibration level of the magnetometer, which is also that of the compass.
SliderWithTextField {
    id: root

    // Lets the sliders above give their labels the same width.
    readonly property alias labelTextWidth: metrics.width

    Layout.fillWidth: true
    integer: true
    label: qsTr("Calib. level")
    maxValue: 3
    minValue: 0
    stepSize: 1

    TextMetrics {
        id: metrics

        text: root.label
    }
}
