pragma ComponentBehavior: Bound
pragma Translator: SmartphoneModelPage

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import ".."
import "../shared"
import "../../js/devicemodel/smartphone-model-page-logic.js" as Logic

// The drawing of the device, and the controls that turn and move it.
RowLayout {
    id: root

    required property SmartphoneModelPage page
    readonly property DeviceMotion motion: page.motion

    component Sliders: AxesSliders {
        // The user chose other values, of which one is new.
        signal submitted(values: list<real>)

        integer: root.page.integer
        numberRoundingSize: root.page.numberRoundingSize
        stepSize: root.page.stepSize

        onXSubmitted: x => submitted([x, values[1], values[2]])
        onYSubmitted: y => submitted([values[0], y, values[2]])
        onZSubmitted: z => submitted([values[0], values[1], z])
    }

    spacing: 12

    FontMetrics {
        id: metrics
    }

    SmartphoneModelArea {
        Layout.fillHeight: true
        Layout.fillWidth: true
        Layout.minimumWidth: 160
        Layout.preferredWidth: Layout.minimumWidth
        displacement: root.motion.displacement
        keyboardFocus: root.page.activeFocus
        magneticField: root.motion.sensorsManager.magneticField
        modelConfig: root.page.modelConfig
        moveMaxValue: root.page.moveMaxValue
        moveMinValue: root.page.moveMinValue
        rotationMode: root.page.rotationMode
        rotationState: root.motion.rotation

        onMoved: displacement => root.motion.displacement = displacement
        onPressed: root.page.forceActiveFocus()
        onTurned: rotation => {
            root.page.resetSlidersValue();
            root.motion.previousRotation = Logic.nearestAngles(root.motion.previousRotation,
                                                               rotation);
            root.page.rotate(rotation);
        }
    }

    PageScrollView {
        id: controls

        Layout.fillHeight: true
        Layout.fillWidth: true
        Layout.maximumWidth: Layout.preferredWidth
        Layout.preferredWidth: Math.max(400, 24 * metrics.height)

        ColumnLayout {
            spacing: 12
            width: Math.max(controls.availableWidth, implicitWidth)

            Row {
                // The style draws the ring of a radio button in this colour, darker and blurred.
                palette.window: Qt.lighter(root.palette.windowText, 1.5)
                spacing: 12

                RadioButton {
                    checked: root.page.rotationMode
                    focusPolicy: Qt.TabFocus // after a click, keys still move the device
                    text: qsTr("Rotation")

                    onToggled: root.page.rotationMode = checked
                }

                RadioButton {
                    checked: !root.page.rotationMode
                    focusPolicy: Qt.TabFocus
                    text: qsTr("Move")

                    onToggled: root.page.rotationMode = !checked
                }
            }

            StackLayout {
                Layout.fillHeight: false
                currentIndex: root.page.rotationMode ? 0 : 1

                Sliders {
                    labels: [qsTr("X-Rot"), qsTr("Y-Rot"), qsTr("Z-Rot")]
                    maxValue: root.page.rotMaxValue
                    minValue: root.page.rotMinValue
                    values: root.motion.rotation

                    onSubmitted: rotation => root.page.rotate(rotation)
                }

                Sliders {
                    labels: [qsTr("X"), qsTr("Y"), qsTr("Z")]
                    maxValue: root.page.moveMaxValue
                    minValue: root.page.moveMinValue
                    values: root.motion.displacement

                    onSubmitted: displacement => root.motion.displacement = displacement
                }
            }

            DeviceRotationButtons {
                Layout.fillWidth: true

                onChosen: rotation => root.page.rotate(rotation)
            }

            ResultingValues {
                Layout.fillWidth: true
                decimals: root.page.numberRoundingSize
                motion: root.motion
                numberLocale: root.page.locale
            }
        }
    }
}
