pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Dialogs

import org.plova 1.0

import "shared"

// What the emulator's camera sees: a camera of the host or a video file.
EmulationPage {
    id: root

    readonly property CameraEmulationManager cameraManager: cameraEmulationManager // qmllint disable unqualified
    readonly property bool hasCamera: cameraManager.cameras.length > 0
    required property ErrorMessageDialog errorDialog
    // The source that is chosen. It follows what plays, and otherwise whether there are cameras.
    property bool videoFileChosen: !hasCamera
    // not the dialog's, which changes also when the dialog is cancelled
    property url videoFileUrl
    property string videoFilePath: localPath(videoFileUrl)
    // What was handed to the camera last, which the choices below may differ from.
    property string currentCameraName: ""
    property string currentResolution: ""
    property string currentFramerate: ""

    readonly property alias fileDialog: fileDialog
    readonly property int spacing: 15
    readonly property int minimumContentWidth: 620 - 2 * spacing

    function localPath(url: url): string {
        return cameraManager.localPath(url);
    }

    function setupCurrentCameraStreamValues() {
        currentCameraName = cameraManager.cameraName;
        currentResolution = "%1x%2".arg(cameraManager.width).arg(cameraManager.height);
        currentFramerate = cameraManager.framerate;
    }

    function chooseSource(videoFile: bool) {
        videoFileChosen = videoFile;
        if (videoFile && videoFilePath === "")
            stopStream();
        else if (cameraManager.streamRunning)
            startStream();
    }

    function openVideoFile(url: url) {
        videoFileUrl = url;
        if (videoFilePath !== "") {
            cameraManager.startVideoStream(videoFilePath);
        } else {
            stopStream();
            errorDialog.show(qsTr("The path of the video file cannot be read."));
        }
    }

    function startStream() {
        if (videoFileChosen)
            cameraManager.startVideoStream(videoFilePath);
        else
            cameraManager.startCameraStream();
    }

    function stopStream() {
        cameraManager.stopStreams();
    }

    function exitPage(continuation: var) {
        continuation();
        stopStream();
    }

    // What leaves for the emulator, as the sender counts it.
    function streamStatus(framesPerSecond: int, size: size): string {
        if (framesPerSecond < 0)
            return "";
        return framesPerSecond === 0
            ? qsTr("no pictures")
            : qsTr("%1 frames/s, %2x%3").arg(framesPerSecond).arg(size.width).arg(size.height);
    }

    margin: spacing

    onHasCameraChanged: {
        if (!cameraManager.videoStreamRunning)
            videoFileChosen = !hasCamera;
    }

    onShownChanged: {
        if (!shown)
            fileDialog.close(); // accepted later it would start a stream
    }

    Connections {
        target: root.cameraManager

        function onStreamRunningChanged() {
            if (root.cameraManager.streamRunning)
                root.videoFileChosen = root.cameraManager.videoStreamRunning || !root.hasCamera;
        }

        function onCameraStreamSettingsApplied() {
            root.setupCurrentCameraStreamValues();
        }

        function onVideoFileCodecChecked(success: bool, codecName: string) {
            if (success)
                return;
            root.errorDialog.show(codecName === ""
                ? qsTr("Could not determine the video codec of the video file. Supported codecs: VP8 and VP9.")
                : qsTr("Camera emulation does not support %1. Supported codecs: VP8 and VP9.").arg(codecName));
        }

        function onStreamSizeRefused(size: size) {
            root.errorDialog.show(qsTr("Camera emulation does not support the size %1x%2. The largest one is %3x%3.")
                .arg(size.width).arg(size.height).arg(root.cameraManager.maximumSideLength));
        }
    }

    contentFile: Qt.resolvedUrl("camera/CameraManagementContent.qml")

    FileDialog {
        id: fileDialog

        nameFilters: [qsTr("Video files (*.webm *.mkv)")]
        title: qsTr("Open Video File")

        onAccepted: root.openVideoFile(currentFile)
    }
}
