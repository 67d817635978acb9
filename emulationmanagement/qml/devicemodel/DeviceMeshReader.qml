import QtQml

import "../../js/devicemodel/mesh-reading.js" as Meshes

// Reads a mesh by the script, as soon as it is created. DeviceModelReader creates it in an engine
// and a thread of its own.
QtObject {
    // A MeshReading. Importing the module of its type would take longer than reading a mesh.
    required property var reading

    Component.onCompleted: {
        try {
            const {textured, plain} = Meshes.packedFaces(Meshes.geometry(reading.model));
            reading.setFaces(textured, plain);
        } catch (error) {
            // The lists of the model do not fit together: the reading stays without faces.
        }
    }
}
