.pragma library
.import "three-json-loader.js" as Three

// Reads meshes in the JSON format of three.js, by its own loader.

const cornersPerFace = 3;
const numbersPerCorner = 11;

// The triangles of a model with their normals, as three.js describes them.
function geometry(model) {
    return new Three.THREE.JSONLoader().parse(model).geometry;
}

// Collects corners of triangles in compact form.
function Corners(faceCount) {
    const packed = new Float32Array(faceCount * cornersPerFace * numbersPerCorner);
    let place = 0;
    this.buffer = packed.buffer;
    // A loop or an array for each corner would take several times as long.
    this.add = (position, normal, color, uv) => {
        packed[place++] = position.x;
        packed[place++] = position.y;
        packed[place++] = position.z;
        packed[place++] = normal.x;
        packed[place++] = normal.y;
        packed[place++] = normal.z;
        packed[place++] = color.r;
        packed[place++] = color.g;
        packed[place++] = color.b;
        packed[place++] = uv.x;
        packed[place++] = uv.y;
    };
}

// Packs the triangles with texture coordinates and the others. Each corner has 11 floating-point
// numbers: position, normal, colour (red, green, blue) and texture coordinates. Throws an error if
// a face has corners that do not exist.
function packedFaces({vertices, faces, faceVertexUvs}) {
    const texturedCount = faces.reduce((count, face, i) => faceVertexUvs[0][i] ? count + 1 : count, 0);
    const textured = new Corners(texturedCount);
    const plain = new Corners(faces.length - texturedCount);
    const noUv = {x: 0, y: 0};
    faces.forEach((face, i) => {
        const uvs = faceVertexUvs[0][i];
        const corners = uvs ? textured : plain;
        [face.a, face.b, face.c].forEach((index, corner) => corners.add(
            vertices[index], face.vertexNormals[corner] ?? face.normal,
            face.vertexColors[corner] ?? face.color, uvs ? uvs[corner] : noUv));
    });
    return {textured: textured.buffer, plain: plain.buffer};
}
