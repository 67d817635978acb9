.pragma library
.import "three.js" as Three
.import "smartphone-model-page-logic.js" as Logic

// Where the device and the camera are in the drawn scene, in which the device fills a ball of radius
// 1. Axes and rotations are those of smartphone-model-page-logic.js.

const fieldOfView = 50; // degrees, from the bottom of the drawing to its top
const slopeOfView = Math.tan(Logic.radians(fieldOfView / 2));
const margin = 1.05; // around the ball
// The camera looks at the middle from a little above, which shows the top side of a lying device.
const elevation = 12; // degrees

const cubeSize = 100; // of Qt Quick 3D's "#Cube"
const phone = Qt.vector3d(0.72, 1.5, 0.08);
const boxScale = phone.times(2 / (phone.length() * cubeSize));

// The rotation of the drawn device. The angles of the sliders are no Euler angles of Qt Quick 3D,
// which turns about other axes.
function quaternion(rotation) {
    const THREE = Three.THREE;
    const {w, x, y, z} = new THREE.Quaternion().setFromEuler(
        new THREE.Euler(...rotation.map(Logic.radians), "XYZ"));
    return Qt.quaternion(w, x, y, z);
}

// The camera's distance from the middle of the scene. However the device is turned, all of it is in
// the drawing.
function cameraDistance(width, height) {
    const slope = slopeOfView * Math.min(1, width / height);
    return margin / Math.sin(Math.atan(slope));
}

// A vector of the world as the camera sees it: to its right, up and to the camera.
function seen([x, y, z]) {
    const [sin, cos] = [Math.sin(Logic.radians(elevation)), Math.cos(Logic.radians(elevation))];
    return [x, y * cos - z * sin, y * sin + z * cos];
}

// The place of the moved device. If it is not moved along z, the drawing shows it at the origin
// point of the mouse's rotation.
function drawnPosition(displacement, width, height) {
    const [x, y, z] = displacement;
    const unit = slopeOfView * cameraDistance(width, height) / 2;
    return Qt.vector3d(x * unit * width / (2 * height), y * unit, z * unit);
}
