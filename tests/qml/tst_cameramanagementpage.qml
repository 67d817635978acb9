import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtTest

import "qrc:/emulationmanagement/qml"

import "find.js" as Find

Item {
    id: root

    width: 1100
    height: 600

    Component {
        id: component

        EmulationManagementView {}
    }

    SignalSpy {
        id: running

        target: cameraEmulationManager
        signalName: "streamRunningChanged"
    }

    TestCase {
        id: test

        readonly property var manager: cameraEmulationManager
        readonly property string front: "Front | device=a | video/x-raw,width=640,height=480,"
            + "framerate={(fraction)30/1,(fraction)15/1}; video/x-raw,width=320,height=240,framerate=15/1"
        readonly property string rear: "Rear | device=b | video/x-raw,width=80,height=60,framerate=5/1"
        property EmulationManagementView view
        property CameraManagementPage page

        name: "CameraManagementPage"
        when: windowShown

        function open(cameras: list<string>) {
            failOnWarning(/.*/);
            host.setCameras(cameras);
            manager.updateCamerasList();
            tryVerify(() => manager.cameras.length === cameras.length);
            view = createTemporaryObject(component, root);
            page = view.pagesIds[4];
            verify(!comboBox("Camera")); // made when it is first shown
            click("Camera Management");
        }

        function cleanup() {
            view.errorDialog.close();
            click("Sensors Values");
            compare(manager.streamRunning, false);
        }

        function find(title: string): Item {
            return Find.find(view, item => item.text === title && item.clicked !== undefined);
        }

        function click(title: string) {
            running.clear();
            mouseClick(find(title));
        }

        function comboBox(title: string): Item {
            return Find.find(page, item => item instanceof ComboBox
                                           && item.Accessible.name === title);
        }

        function selection(): string {
            return ["Camera", "Resolution", "Framerate"]
                .map(title => comboBox(title).displayText).join(" ");
        }

        function choose(title: string, index: int) {
            comboBox(title).currentIndex = index;
            comboBox(title).activated(index);
        }

        // The letters of what can be clicked, then of the source that is checked.
        function state(): string {
            const titles = {H: "Host camera", V: "Video file", S: "Start stream", X: "Stop"};
            const letters = accept => Object.keys(titles).filter(key => accept(find(titles[key])));
            return letters(item => item.enabled).concat(" ", letters(item => item.checked)).join("");
        }

        function test_withoutCamera() {
            open([]);
            compare(comboBox("Camera").visible, false);
            compare(state(), "V V");
            page.videoFileUrl = mediaUrl + "/vp8.webm";
            compare(state(), "VS V");
            click("Start stream");
            host.setCameras([rear]);
            tryVerify(() => state() === "HVX V"); // what plays goes on
            host.setCameras([]);
            tryVerify(() => state() === "VX V");
            click("Stop");
            host.setCameras([rear]);
            tryVerify(() => state() === "HVS H"); // taken over
            compare(selection(), "  ");
            choose("Camera", 0);
            compare(selection(), "Rear 80x60 5/1");
            host.setCameras([front, rear]);
            tryVerify(() => manager.cameras.length === 2);
            compare(selection(), "Rear 80x60 5/1");
            host.setCameras([front]);
            tryVerify(() => selection() === "Front 640x480 30/1");
        }

        function test_settings() {
            const current = () => [page.currentCameraName, page.currentResolution,
                                   page.currentFramerate].join(" ");
            open([front, rear]);
            click("Update cameras list");
            choose("Resolution", 1);
            compare(comboBox("Framerate").currentText, "15/1");
            choose("Resolution", 0);
            choose("Framerate", 1);
            compare(manager.framerate, "15/1");
            choose("Camera", 1);
            compare(selection(), "Rear 80x60 5/1");
            compare(current(), "Front 640x480 30/1");
            click("Start stream");
            tryVerify(() => Find.find(page, item => /^\d+ frames\/s, 640x480$/.test(item.text)));
            choose("Camera", 0);
            compare(running.count, 1);
            click("Set settings");
            compare(running.count, 2); // stopped and started
            compare(current(), "Front 640x480 30/1");
        }

        function test_switching_data(): var {
            return [
                {tag: "vp9.mkv", text: ""},
                {tag: "motion-jpeg.mkv", text: "Camera emulation does not support Motion JPEG. "
                                               + "Supported codecs: VP8 and VP9."},
                {tag: "too-wide.webm", text: "Camera emulation does not support the size 2048x16. "
                                              + "The largest one is 2040x2040."},
                {tag: "%E4.webm", text: "The path of the video file cannot be read."},
                {tag: "text.webm", text: "Could not determine the video codec of the video file. "
                                         + "Supported codecs: VP8 and VP9."},
            ];
        }

        function test_switching(row: var) {
            open([front]);
            compare(state(), "HVS H");
            click("Start stream");
            compare(state(), "HVX H");
            click("Video file"); // none is chosen
            compare(state(), "HV V");
            page.videoFileUrl = mediaUrl + "/vp8.webm";
            click("Host camera");
            compare(running.count, 0);
            click("Start stream");
            click("Video file");
            compare(manager.videoStreamRunning, true);
            page.openVideoFile(mediaUrl + "/" + row.tag);
            compare(view.errorDialog.text, row.text);
            compare(view.errorDialog.visible, row.text !== "");
            compare(manager.streamRunning, row.text === "");
        }

        function test_namesAreNoMarkup() {
            open(["A & <b>B</b>" + rear.substring(4)]);
            click("Set settings");
            comboBox("Camera").popup.open();
            const plain = item => item.text === "A & <b>B</b>" && item.textFormat === Text.PlainText;
            verify(Find.find(page, plain));
            verify(Find.find(comboBox("Camera").popup.contentItem, plain));
            comboBox("Camera").popup.close();
        }

        function test_tooLarge() {
            open(["A | device=a | video/x-raw,width=64,height=2041", front]);
            const hint = Find.find(page, item => item.text === "Only sizes up to 2040x2040 can be streamed.");
            compare(hint.visible, true);
            choose("Camera", 1);
            compare(hint.visible, false);
        }

        // What it opens would start to stream.
        function test_fileDialogGoesWithThePage() {
            open([]);
            click("…");
            const dialog = Array.from(page.data).find(object => object instanceof FileDialog);
            tryCompare(dialog, "visible", true);
            view.visible = false;
            compare(dialog.visible, false);
            view.visible = true;
        }

        function test_localPath() {
            open([]);
            compare(page.localPath("file:///tmp/50%25%20%231%3F.webm"), "/tmp/50% #1?.webm");
        }
    }
}
