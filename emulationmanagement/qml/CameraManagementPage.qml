import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts

// What the emulator's camera sees: a camera of the host or a video file.
EmulationPage {
    id: root

    readonly property var cameraManager: cameraEmulationManager // qmllint disable unqualified
    required property ErrorMessageDialog errorDialog
    // not the dialog's, which changes also when the dialog is cancelled
    property url videoFileUrl
    property string videoFilePath: localPath(videoFileUrl)
    // What was handed to the camera last, which the choices below may differ from.
    property string currentCameraName: ""
    property string currentResolution: ""
    property string currentFramerate: ""

    readonly property int spacing: 15
    readonly property int minimumContentWidth: 620

    function localPath(url: url): string {
        return decodeURIComponent(url.toString().replace(/^(file:\/{2})/, ""));
    }

    function setupCurrentCameraStreamValues() {
        currentCameraName = cameraManager.cameraName;
        currentResolution = "%1x%2".arg(cameraManager.width).arg(cameraManager.height);
        currentFramerate = cameraManager.framerate;
    }

    function startStream() {
        if (videoFileButton.checked)
            cameraManager.startVideoStream(videoFilePath);
        else
            cameraManager.startCameraStream();
    }

    function stopStream() {
        if (videoFileButton.checked)
            cameraManager.stopVideoStream();
        else
            cameraManager.stopCameraStream();
    }

    function exitPage(continuation: var) {
        continuation();
        if (cameraManager.streamRunning)
            stopStream();
    }

    Connections {
        target: root.cameraManager

        function onCameraStreamSettingsApplied() {
            root.setupCurrentCameraStreamValues();
        }

        function onVideoFileCodecChecked(success: bool, codecName: string) {
            if (success)
                return;
            if (root.cameraManager.streamRunning)
                root.cameraManager.stopVideoStream();
            root.errorDialog.show(codecName === ""
                ? qsTr("Could not determine the video codec of the video file. Supported codecs: VP8 and VP9.")
                : qsTr("Camera emulation does not support %1. Supported codecs: VP8 and VP9.").arg(codecName));
        }
    }

    FileDialog {
        id: fileDialog

        title: qsTr("Open Video File")
        nameFilters: [qsTr("Video files (*.webm *.mkv)")]

        onAccepted: {
            root.videoFileUrl = currentFile;
            root.cameraManager.startVideoStream(root.videoFilePath);
        }
    }

    PageScrollView {
        id: scrollView

        anchors.fill: parent
        contentWidth: Math.max(root.minimumContentWidth, availableWidth)
        contentHeight: content.implicitHeight + 2 * root.spacing

        ColumnLayout {
            id: content

            x: root.spacing
            y: root.spacing
            width: scrollView.contentWidth - 2 * root.spacing
            spacing: root.spacing

            GroupBox {
                Layout.fillWidth: true
                title: qsTr("Source")

                Row {
                    spacing: root.spacing

                    RadioButton {
                        id: hostCameraButton

                        checked: enabled
                        enabled: root.cameraManager.cameras.length > 0
                        text: qsTr("Host camera")

                        onCheckedChanged: {
                            if (checked && root.cameraManager.streamRunning)
                                root.cameraManager.startCameraStream();
                        }
                        // not a binding of the other button, which would be evaluated by those
                        // that its handler changes
                        onEnabledChanged: videoFileButton.checked = !enabled
                    }

                    RadioButton {
                        id: videoFileButton

                        text: qsTr("Video file")

                        onCheckedChanged: {
                            if (!checked)
                                return;
                            if (root.videoFilePath === "")
                                root.cameraManager.stopCameraStream();
                            else if (root.cameraManager.streamRunning)
                                root.cameraManager.startVideoStream(root.videoFilePath);
                        }
                    }
                }
            }

            HostCameraControls {
                Layout.fillWidth: true
                cameraManager: root.cameraManager
                currentCameraName: root.currentCameraName
                currentFramerate: root.currentFramerate
                currentResolution: root.currentResolution
                spacing: root.spacing
                visible: hostCameraButton.checked
            }

            RowLayout {
                visible: videoFileButton.checked

                Label {
                    text: qsTr("Video file")
                }

                TextField {
                    Accessible.name: qsTr("Video file")
                    Layout.fillWidth: true
                    readOnly: true
                    text: root.videoFileUrl
                }

                Button {
                    text: qsTr("…")
                    onClicked: fileDialog.open()
                }
            }

            RowLayout {
                Button {
                    enabled: !root.cameraManager.streamRunning
                             && (!videoFileButton.checked || root.videoFilePath !== "")
                    text: qsTr("Start stream")
                    onClicked: root.startStream()
                }

                Button {
                    enabled: root.cameraManager.streamRunning
                    text: qsTr("Stop")
                    onClicked: root.stopStream()
                }

                Item {
                    Layout.fillWidth: true
                }

                Button {
                    text: qsTr("Update cameras list")
                    onClicked: root.cameraManager.updateCamerasList()
                }
            }
        }
    }
}
