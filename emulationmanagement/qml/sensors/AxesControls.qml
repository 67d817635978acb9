import QtQuick

import "../shared"

// Sliders for the x, y and z of a sensor's model.
AxesSliders {
    // An IntXYZModel or a DoubleXYZModel, whose common base is a template that QML cannot name.
    required property var model

    labelWidth: metrics.maximumCharacterWidth
    labels: [qsTr("X"), qsTr("Y"), qsTr("Z")]
    numberRoundingSize: 3
    stepSize: 0.001
    values: [model.x, model.y, model.z]

    FontMetrics {
        id: metrics
    }
}
