import QtQuick
import QtQuick.Controls

import "../js/plain-text.js" as PlainText

// Shows a message of the emulator or about a file. It is a part of the window: the platform's
// dialogs keep their first text while they are open, and interpret markup in it.
Dialog {
    id: root

    // In milliseconds. A message that comes again within this time is not shown again: a page can
    // repeat a call that the emulator refuses ten times a second.
    readonly property int repetitionInterval: 1000
    // The last messages of the last repetitionInterval, each with its time.
    property var lastTimes: []
    // A burst of different messages would otherwise make each of them slower than the one before.
    readonly property int maximumTimes: 20
    property string text: ""

    // Shows a message. It replaces one that is still open.
    function show(message: string) {
        text = PlainText.shortened(message);
        open();
    }

    // Shows a message unless it repeats a recent one.
    function showOnce(message: string) {
        const key = PlainText.shortened(message);
        const now = Date.now();
        const recent = lastTimes.slice(-maximumTimes)
            .filter(([, time]) => Math.abs(now - time) < repetitionInterval);
        const others = recent.filter(([other]) => other !== key);
        lastTimes = [...others, [key, now]];
        const isRepetition = others.length < recent.length;
        if (!isRepetition)
            show(message);
    }

    anchors.centerIn: Overlay.overlay
    focus: true
    height: Math.min(implicitHeight, (parent?.height ?? 0) - 20)
    modal: true
    parent: Overlay.overlay
    title: qsTr("Error")
    width: Math.min(480, (parent?.width ?? 0) - 20)

    // Made when it is first shown, because the IDE makes the dialog when it starts.
    contentItem: Loader {
        id: loader
    }
    footer: Item {
        implicitHeight: okButton.implicitHeight + 2 * root.padding

        Button {
            id: okButton

            anchors.centerIn: parent
            focus: true
            text: qsTr("OK")

            Keys.onEnterPressed: clicked()
            Keys.onReturnPressed: clicked()
            onClicked: root.accept()
        }
    }

    onAboutToShow: {
        if (loader.status === Loader.Null)
            loader.setSource(Qt.resolvedUrl("shared/ErrorMessageText.qml"), {dialog: root});
    }
}
