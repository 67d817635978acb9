import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// How far a track has been played, and a handle to go elsewhere.
RowLayout {
    id: root

    property int rowCount: 0
    property int currentIndex: 0
    required property var locale
    readonly property alias pressed: slider.pressed

    // The handle was moved to another point.
    signal moved(index: int)

    spacing: 6

    Label {
        text: qsTr("Track progress")
    }

    Slider {
        id: slider

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
        // as wide as it ever is, so that the slider keeps its width
        Layout.minimumWidth: widest.width
        horizontalAlignment: Text.AlignRight
        text: (slider.value / slider.to * 100).toLocaleString(root.locale, "f", 2) + "%"

        TextMetrics {
            id: widest

            text: "100.00%"
        }
    }
}
