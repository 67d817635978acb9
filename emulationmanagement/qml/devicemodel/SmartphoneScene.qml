import QtQuick
import QtQuick3D

import org.plova 1.0

import "../../js/devicemodel/device-drawing.js" as Drawing

// The drawing of the device.
View3D {
    id: root

    required property SmartphoneModel place
    function problemText(): string {
        switch (reader.problem) {
        case DeviceModelReader.Unreadable:
            return qsTr("The device is drawn as a box, because the file \"%1\" cannot be read.")
                .arg(reader.problemFile);
        case DeviceModelReader.TooLarge:
            return qsTr("The device is drawn as a box, because the file \"%1\" is too large to draw.")
                .arg(reader.problemFile);
        case DeviceModelReader.NoMesh:
            return qsTr("The device is drawn as a box, because the file \"%1\" contains no mesh.")
                .arg(reader.problemFile);
        case DeviceModelReader.NoImage:
            return qsTr("The device is drawn as a box, because the file \"%1\" contains no image.")
                .arg(reader.problemFile);
        }
        return "";
    }

    function readModel() {
        reader.read(place.modelConfig.smartphone3DModelMeshUri,
                    place.modelConfig.smartphone3DModelTextureUri);
    }

    camera: camera

    environment: SceneEnvironment {
        antialiasingMode: SceneEnvironment.MSAA
        antialiasingQuality: SceneEnvironment.High
        backgroundMode: SceneEnvironment.Transparent // shows the page's background
        lightProbe: Texture { // for the case to reflect
            source: "qrc:/emulationmanagement/textures/light-probe.ktx"
        }
    }

    Component.onCompleted: readModel()

    Binding {
        root.place.problem: root.problemText()
    }

    Connections {
        target: root.place.modelConfig

        function onSmartphone3DModelConfigChanged() {
            root.readModel();
        }
    }

    DeviceModelReader {
        id: reader
    }

    Node {
        eulerRotation.x: -Drawing.elevation

        PerspectiveCamera {
            id: camera

            clipFar: 100
            clipNear: 0.01
            fieldOfView: Drawing.fieldOfView
            z: Drawing.cameraDistance(root.width, root.height)
        }
    }

    DirectionalLight {
        ambientColor: "#404040"
        color: "white"
        eulerRotation: Qt.vector3d(-35, -25, 0)
    }

    DrawnDevice {
        attitude: root.place.rotationState
        isBox: reader.problem !== DeviceModelReader.None
        model: reader
        position: Drawing.drawnPosition(root.place.displacement, root.width, root.height)
    }
}
