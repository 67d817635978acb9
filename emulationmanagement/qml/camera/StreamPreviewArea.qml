import QtQuick

import org.plova 1.0

// Shows the pictures that are sent, in the room that is left.
Item {
    id: root

    required property StreamPreview preview
    property bool shown: false
    // Most cameras send twice this size, which is decoded at half its size in little time.
    readonly property size largestPicture: Qt.size(320, 240)

    implicitHeight: 120

    // Without a graphics processor, the whole window is drawn at great cost for each picture. Then
    // there are fewer pictures, so that all of them take less than a hundredth of a processor.
    function adaptInterval() {
        root.preview.interval = 250 * (Window.window?.frameCost ?? 0); // qmllint disable missing-property
    }

    Connections {
        target: root.preview

        function onPictureChanged() {
            root.adaptInterval();
        }
    }

    Binding {
        property: "shown"
        target: root.preview
        value: root.shown
    }

    Image {
        id: picture

        Accessible.name: qsTr("Preview of the stream")
        Accessible.role: Accessible.Graphic
        anchors.left: parent.left
        anchors.top: parent.top
        cache: false
        fillMode: Image.PreserveAspectFit
        height: Math.min(parent.height, root.largestPicture.height)
        horizontalAlignment: Image.AlignLeft
        retainWhileLoading: true
        source: root.preview.picture
        sourceSize: root.largestPicture
        verticalAlignment: Image.AlignTop
        width: Math.min(parent.width, root.largestPicture.width)
    }
}
