pragma ComponentBehavior: Bound
pragma Translator: CameraManagementPage

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

import ".."
import "../shared"

// The choice of the source and the buttons of the stream.
PageScrollView {
    id: root

    required property CameraManagementPage page

    contentWidth: Math.max(root.page.minimumContentWidth, availableWidth)

    ColumnLayout {
        width: root.contentWidth
        height: Math.max(implicitHeight, root.availableHeight)
        spacing: root.page.spacing

        GroupBox {
            Layout.fillWidth: true
            title: qsTr("Source")

            Row {
                // The style draws the ring of a radio button in this colour, darker and blurred.
                palette.window: Qt.lighter(root.palette.windowText, 1.5)
                spacing: root.page.spacing

                RadioButton {
                    checked: !root.page.videoFileChosen
                    enabled: root.page.hasCamera
                    text: qsTr("Host camera")

                    onToggled: root.page.chooseSource(false)
                }

                RadioButton {
                    checked: root.page.videoFileChosen
                    text: qsTr("Video file")

                    onToggled: root.page.chooseSource(true)
                }
            }
        }

        HostCameraControls {
            Layout.fillHeight: false
            Layout.fillWidth: true
            cameraManager: root.page.cameraManager
            currentCameraName: root.page.currentCameraName
            currentFramerate: root.page.currentFramerate
            currentResolution: root.page.currentResolution
            spacing: root.page.spacing
            visible: !root.page.videoFileChosen
        }

        RowLayout {
            visible: root.page.videoFileChosen

            Label {
                text: qsTr("Video file")
            }

            TextField {
                Accessible.name: qsTr("Video file")
                Layout.fillWidth: true
                readOnly: true
                text: root.page.videoFileUrl
            }

            Button {
                Accessible.name: qsTr("Open Video File")
                implicitWidth: 40
                text: qsTr("…")

                onClicked: root.page.fileDialog.open()
            }
        }

        RowLayout {
            Button {
                enabled: !root.page.cameraManager.streamRunning
                         && (!root.page.videoFileChosen || root.page.videoFilePath !== "")
                text: qsTr("Start stream")
                onClicked: root.page.startStream()
            }

            Button {
                enabled: root.page.cameraManager.streamRunning
                text: qsTr("Stop")
                onClicked: root.page.stopStream()
            }

            Label {
                Layout.fillWidth: true
                text: root.page.streamStatus(root.page.cameraManager.streamFramesPerSecond,
                                             root.page.cameraManager.streamSize)
            }

            Button {
                text: qsTr("Update cameras list")
                onClicked: root.page.cameraManager.updateCamerasList()
            }
        }

        StreamPreviewArea {
            Layout.fillHeight: true
            Layout.fillWidth: true
            preview: root.page.cameraManager.preview
            shown: root.page.shown && Window.visibility !== Window.Minimized
        }
    }
}
