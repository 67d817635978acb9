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
