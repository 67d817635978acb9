pragma ComponentBehavior: Bound
pragma Translator: SensorsValuesPage

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import ".."
import "../shared"

// The controls of all sensors.
ColumnLayout {
    id: root

    required property SensorsValuesPage page

    spacing: 10

    PageScrollView {
        id: scrollView

        Layout.fillWidth: true
        Layout.fillHeight: true

        GridLayout {
            id: sensorsGrid

            width: Math.max(scrollView.availableWidth, implicitWidth)
            columns: 2
            columnSpacing: 12
            rowSpacing: 5
            uniformCellWidths: true

            AccelerometerControls {}
            MagnetometerControls {}
            CompassControls {}
            MagneticFieldControls {}
            OrientationControls {}
            GyroscopeControls {}
            LightControls {}
            ProximityControls {}
            Item {} // an empty cell
            TapControls {}
        }
    }

    Button {
        text: qsTr("Reset values")

        onClicked: {
            for (const control of sensorsGrid.children)
                control.clearFocus?.();
            root.page.sensorsManager.setDefaultValues();
        }
    }
}
