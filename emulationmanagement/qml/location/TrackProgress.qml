import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import "../../js/location/number-texts.js" as NumberTexts

// Shows how far a track has been played. The user can move the handle to another point.
RowLayout {
    id: root

    property int rowCount: 0
    property int currentIndex: 0
    readonly property alias pressed: slider.pressed

    // The user moved the handle to another point.
    signal moved(index: int)

    spacing: 6

    Label {
        text: qsTr("Track progress")
    }

    Slider {
        id: slider

        // By these names, screen readers find the range.
        readonly property double minimumValue: from
        readonly property double maximumValue: to

        Accessible.name: qsTr("Track progress")
        Layout.fillWidth: true
        Layout.minimumWidth: 60
        enabled: root.rowCount > 1
        from: 0
        stepSize: 1
        to: Math.max(1, root.rowCount - 1)
        value: root.rowCount === 1 ? 1 : root.currentIndex

        onValueChanged: {
            if (pressed)
                root.moved(value);
        }
    }

    Label {
        // The width of the widest text, so that the slider keeps its width.
        Layout.minimumWidth: widest.width
        horizontalAlignment: Text.AlignRight
        text: NumberTexts.percentText(slider.value / slider.to)

        TextMetrics {
            id: widest

            text: "100.00%"
        }
    }
}
