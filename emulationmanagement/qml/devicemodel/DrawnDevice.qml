import QtQuick
import QtQuick3D
import QtQuick3D.Helpers

import org.plova 1.0

import "../../js/devicemodel/device-drawing.js" as Drawing

// The device in the scene. It fills a ball of radius 1.
Node {
    id: root

    required property list<real> attitude // Euler angles, as in DeviceMotion
    required property DeviceModelReader model
    required property bool isBox // a box of a phone's size replaces the model

    rotation: Drawing.quaternion(attitude)

    Model {
        visible: !root.isBox

        geometry: ProceduralMesh {
            colors: root.model.caseMesh.colors
            normals: root.model.caseMesh.normals
            positions: root.model.caseMesh.positions
        }
        materials: PrincipledMaterial {
            metalness: 0.4
            roughness: 0.4
        }
    }

    Model {
        visible: !root.isBox

        geometry: ProceduralMesh {
            normals: root.model.frontMesh.normals
            positions: root.model.frontMesh.positions
            uv0s: root.model.frontMesh.uvs
        }
        materials: PrincipledMaterial {
            baseColor: "#606060" // most of the screen's light is its own
            baseColorMap: frontTexture
            emissiveFactor: Qt.vector3d(0.75, 0.75, 0.75)
            emissiveMap: frontTexture
            roughness: 0.2
        }
    }

    Texture {
        id: frontTexture

        sourceItem: ImageItem {
            image: root.model.texture
        }
    }

    Model {
        scale: Drawing.boxScale
        source: "#Cube"
        visible: root.isBox

        materials: PrincipledMaterial {
            baseColor: "#808890"
            roughness: 0.4
        }
    }
}
