pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import org.plova 1.0

import "../shared"

// What the host's camera streams, and the choices of what it is to stream next.
RowLayout {
    id: root

    required property CameraEmulationManager cameraManager
    property string currentCameraName: ""
    property string currentResolution: ""
    property string currentFramerate: ""

    readonly property bool isTooLarge: Math.max(cameraManager.width, cameraManager.height)
                                       > cameraManager.maximumSideLength

    uniformCellSizes: true

    component FieldLabel: Label {
        Layout.alignment: Qt.AlignTop
    }

    component ValueLabel: Label {
        Layout.fillWidth: true
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
    }

    // Shows what is selected, also when the list or the selection changes.
    component SelectionBox: ChoiceBox {
        property int selectedIndex: -1

        Layout.fillWidth: true

        onActivated: currentIndex = selectedIndex // the choice may have been refused
        onModelChanged: currentIndex = selectedIndex // a new model begins at its first entry
        onSelectedIndexChanged: currentIndex = selectedIndex
    }

    GroupBox {
        Layout.fillHeight: true
        Layout.fillWidth: true
        title: qsTr("Current values")

        GridLayout {
            anchors.left: parent.left
            anchors.right: parent.right
            columns: 2

            FieldLabel {
                text: qsTr("Camera") + ":"
            }

            ValueLabel {
                text: root.currentCameraName
            }

            FieldLabel {
                text: qsTr("Resolution") + ":"
            }

            ValueLabel {
                text: root.currentResolution
            }

            FieldLabel {
                text: qsTr("Framerate") + ":"
            }

            ValueLabel {
                text: root.currentFramerate
            }
        }
    }

    GroupBox {
        Layout.fillHeight: true
        Layout.fillWidth: true
        title: qsTr("Settings")

        GridLayout {
            anchors.left: parent.left
            anchors.right: parent.right
            columns: 2

            Label {
                text: qsTr("Camera")
            }

            SelectionBox {
                id: cameraBox

                Accessible.name: qsTr("Camera")
                implicitWidth: Application.font.pixelSize
                    * Math.max(...root.cameraManager.cameras.map(name => name.length), 0)
                model: root.cameraManager.cameras
                selectedIndex: root.cameraManager.cameras.indexOf(root.cameraManager.cameraName)

                // a device's name is neither markup nor has it a shortcut
                delegate: MenuItem {
                    id: entry

                    required property int index
                    required property string modelData

                    highlighted: cameraBox.highlightedIndex === index
                    text: modelData
                    width: ListView.view.width

                    contentItem: Label {
                        color: entry.highlighted ? palette.highlightedText : palette.text
                        elide: Text.ElideRight
                        font.weight: cameraBox.currentIndex === entry.index ? Font.DemiBold
                                                                            : Font.Normal
                        text: entry.text
                        textFormat: Text.PlainText
                        verticalAlignment: Text.AlignVCenter
                    }
                }

                onChosen: index => root.cameraManager.cameraName = root.cameraManager.cameras[index]
            }

            Label {
                text: qsTr("Resolution")
            }

            SelectionBox {
                Accessible.name: qsTr("Resolution")
                model: root.cameraManager.resolutions
                selectedIndex: root.cameraManager.resolutionIndex
                textRole: "string"

                onChosen: index => root.cameraManager.resolutionIndex = index
            }

            Label {
                text: qsTr("Framerate")
            }

            SelectionBox {
                Accessible.name: qsTr("Framerate")
                model: root.cameraManager.framerates
                selectedIndex: root.cameraManager.framerates.indexOf(root.cameraManager.framerate)

                onChosen: index => root.cameraManager.framerate = root.cameraManager.framerates[index]
            }

            Label {
                Layout.columnSpan: 2
                Layout.fillWidth: true
                text: qsTr("Only sizes up to %1x%1 can be streamed.")
                    .arg(root.cameraManager.maximumSideLength)
                visible: root.isTooLarge
                wrapMode: Text.Wrap
            }

            Button {
                Layout.columnSpan: 2
                text: qsTr("Set settings")
                onClicked: root.cameraManager.setCameraStreamSettings()
            }
        }
    }
}
