import QtQuick

// The place of the drawn device. It stays empty if the scene graph cannot draw scenes, for example
// because it draws without a graphics card.
Item {
    id: root

    required property list<real> rotationState // as in DeviceMotion
    required property list<real> displacement // as in DeviceMotion
    required property var modelConfig // names the files of the device's mesh and texture
    readonly property double cameraAngle: 0 // degrees about z: the camera stands upright
    readonly property bool drawn: loader.status === Loader.Ready
    // A sentence for the user if the device's files are of no use, otherwise empty.
    property string problem: ""

    readonly property bool drawsScenes: ![GraphicsInfo.Unknown, GraphicsInfo.Software,
                                          GraphicsInfo.OpenVG].includes(GraphicsInfo.api)

    // Reads the scene's file only now, because it loads Qt Quick 3D.
    onDrawsScenesChanged: {
        if (drawsScenes && loader.status === Loader.Null)
            loader.setSource(Qt.resolvedUrl("SmartphoneScene.qml"), {place: root});
    }

    Loader {
        id: loader

        anchors.fill: parent
    }
}
