.pragma library
.import "three.js" as Three

// The readings of a device that is turned and moved, and the turns and moves by keys and mouse.
//
// Arrays of three numbers are x, y and z. The world's x axis points to the viewer's right, y up and
// z to the viewer. Rotations are Euler angles in degrees: about x, then about the turned y, then
// about the turned z.

// The rotations of the buttons under "Device rotation", in their order.
const presets = [[0, 0, 0], [0, 0, -90], [0, 0, 180], [0, 0, 90], [-90, 0, 0], [90, 0, 0]];

const gravityDirection = [0, -1, 0];

const halfTurn = 180;
const wholeTurn = 360;

function radians(degrees) {
    return degrees * Math.PI / halfTurn;
}

function degrees(radians) {
    return radians * halfTurn / Math.PI;
}

function clamped(value, min, max) {
    return Math.max(min, Math.min(max, value));
}

// A value after a step that does not lead out of the range. A value that is already outside can
// only step back.
function stepped(value, step, min, max) {
    if (step < 0)
        return value > min ? Math.max(min, value + step) : value;
    return value < max ? Math.min(max, value + step) : value;
}

// The world's axes as the turned device sees them.
function worldAxes(rotation) {
    const [sinX, sinY, sinZ] = rotation.map(angle => Math.sin(radians(angle)));
    const [cosX, cosY, cosZ] = rotation.map(angle => Math.cos(radians(angle)));
    return {
        x: [cosY * cosZ, -cosY * sinZ, sinY],
        y: [cosX * sinZ + sinX * sinY * cosZ, cosX * cosZ - sinX * sinY * sinZ, -sinX * cosY],
        z: [sinX * sinZ - cosX * sinY * cosZ, sinX * cosZ + cosX * sinY * sinZ, cosX * cosY],
    };
}

// The turned device's axes in the world.
function deviceAxes(rotation) {
    const {x, y, z} = worldAxes(rotation);
    return [0, 1, 2].map(i => [x[i], y[i], z[i]]);
}

// A vector scaled to the length 1. A vector of length 0 stays as it is.
function direction(vector) {
    const length = Math.hypot(...vector);
    return length > 0 ? vector.map(part => part / length) : vector;
}

// The constant acceleration that leads from one position to the next within a period, starting at
// a speed. SI units.
function linearAcceleration(position, previousPosition, initialSpeed, period) {
    return 2 * (position - previousPosition) / (period * period) - 2 * initialSpeed / period;
}

// The accelerometer's reading in m/s² of a device that is held against gravity and accelerated
// along the world's axes. Unlike in nature, accelerations along y and z reach the device's x axis
// with reversed signs.
function accelerometerReading(rotation, gravity, acceleration) {
    const axes = worldAxes(rotation);
    const [ax, ay, az] = acceleration;
    return [-1, 1, 1].map((sign, i) => gravity * axes.y[i] + ax * axes.x[i]
                                       + sign * (ay * axes.y[i] + az * axes.z[i]));
}

// Turns per second about each Euler axis. An axis whose angle was wrapped between the two rotations
// counts as turned forwards, through 180 degrees.
function rotationFrequencies(rotation, previousRotation, wrapped, period) {
    return rotation.map((angle, i) => {
        const previous = previousRotation[i];
        const difference = wrapped[i] ? wholeTurn - Math.abs(angle) - Math.abs(previous)
                                      : angle - previous;
        return difference / (wholeTurn * period);
    });
}

// The Euler angles of the same attitude that are nearest to those of another one. The angles that a
// drag gives jump by up to half a turn where the attitude hardly changes: without this, the
// gyroscope would show thousands of degrees per second there.
function nearestAngles(rotation, other) {
    const [x, y, z] = rotation;
    const candidates = [[x, y, z], [x + halfTurn, halfTurn - y, z + halfTurn]].map(
        angles => angles.map((angle, i) => angle - wholeTurn * Math.round((angle - other[i])
                                                                         / wholeTurn)));
    const [first, second] = candidates.map(angles => Math.hypot(
        ...angles.map((angle, i) => angle - other[i])));
    return candidates[first <= second ? 0 : 1];
}

// The gyroscope's reading in degrees per second.
function gyroscopeReading(rotation, frequencies) {
    const [, sinY, sinZ] = rotation.map(angle => Math.sin(radians(angle)));
    const [, cosY, cosZ] = rotation.map(angle => Math.cos(radians(angle)));
    const [fx, fy, fz] = frequencies;
    return [
        wholeTurn * (fx * cosZ * cosY + fy * sinZ),
        wholeTurn * (-fx * sinZ * cosY + fy * cosZ),
        wholeTurn * (fz + fx * sinY),
    ];
}

// The magnetometer's reading in the unit of the ambient field.
function magnetometerReading(rotation, field) {
    const THREE = Three.THREE;
    const attitude = new THREE.Euler(...rotation.map(radians), "XYZ");
    const fieldVector = new THREE.Vector3(...field);
    return [[1, 0, 0], [0, 1, 0], [0, 0, 1]].map(axis => {
        const angle = new THREE.Vector3(...axis).applyEuler(attitude).angleTo(fieldVector);
        // a field of length 0 has no direction
        return fieldVector.length() * Math.cos(isNaN(angle) ? Math.PI / 2 : angle);
    });
}

// An acceleration in m/s² in the accelerometer's unit, thousandths of g, without its fraction.
function wireAcceleration(acceleration, unitsPerMetre) {
    // Rounding first keeps 30 degrees from giving 499 through floating-point error.
    const precision = 1e6;
    return Math.trunc(Math.round(acceleration * unitsPerMetre * precision) / precision);
}

// A rotation angle beyond half a turn continues from the other end.
function isBeyondHalfTurn(angle) {
    return Math.abs(angle) > halfTurn;
}

function otherEnd(angle) {
    return -halfTurn * Math.sign(angle);
}

// The degrees by which an arrow key turns the device about each axis. Undefined for other keys.
function arrowTurn(key, shift) {
    switch (key) {
    case Qt.Key_Left: return shift ? [0, -1, 0] : [0, 0, -1];
    case Qt.Key_Right: return shift ? [0, 1, 0] : [0, 0, 1];
    case Qt.Key_Up: return [1, 0, 0];
    case Qt.Key_Down: return [-1, 0, 0];
    }
}

// The steps by which an arrow key moves the device along each axis. Undefined for other keys.
function arrowMove(key) {
    switch (key) {
    case Qt.Key_Left: return [-1, 0, 0];
    case Qt.Key_Right: return [1, 0, 0];
    case Qt.Key_Up: return [0, 1, 0];
    case Qt.Key_Down: return [0, -1, 0];
    }
}

// The place of the moved device's middle in the model's area.
function originPoint(width, height, displacement) {
    const [x, y, z] = displacement;
    const distance = 1 + Math.abs(z);
    return Qt.point(width / 2 + x * width / (8 * distance),
                    height / 2 - y * height / (4 * distance));
}

// The angle in degrees by which a moving pointer turns the device about the axis to the viewer. It
// is 0 unless the pointer passes the origin's vertical line.
function signedAngle(origin, base, pointer) {
    const wasRight = base.x >= origin.x;
    if (wasRight === pointer.x >= origin.x)
        return 0;
    const from = {x: base.x - origin.x, y: base.y - origin.y};
    const to = {x: pointer.x - origin.x, y: pointer.y - origin.y};
    const cosine = (from.x * to.x + from.y * to.y)
                 / (Math.hypot(from.x, from.y) * Math.hypot(to.x, to.y));
    if (isNaN(cosine))
        return 0; // one of the points is the origin
    const angle = degrees(Math.acos(Math.round(cosine * 1000) / 1000));
    // close to the origin, a short move of the pointer is a wide angle
    const distance = Math.abs(to.y);
    const damping = distance > 30 ? 1 : Math.sin(radians(distance));
    const down = Math.sign(pointer.y - base.y);
    return angle * damping * (wasRight ? down : -down);
}

// The degrees by which a drag from base to pointer turns the device about the world's axes.
function dragTurn(origin, base, pointer) {
    return [(pointer.y - base.y) / 2, (pointer.x - base.x) / 2,
            signedAngle(origin, base, pointer) / 2];
}

// A rotation after further turns, in degrees, about the world's x, y and z axes.
function turnedAboutWorldAxes(rotation, turns) {
    const THREE = Three.THREE;
    const matrix = new THREE.Matrix4().makeRotationFromEuler(
        new THREE.Euler(...rotation.map(radians), "XYZ"));
    [[1, 0, 0], [0, 1, 0], [0, 0, 1]].forEach((axis, i) => {
        const turn = new THREE.Matrix4().makeRotationAxis(new THREE.Vector3(...axis),
                                                          radians(turns[i]));
        matrix.multiplyMatrices(turn, matrix);
    });
    const {x, y, z} = new THREE.Euler().setFromRotationMatrix(matrix, "XYZ");
    // The matrix has single precision. Rounding keeps 60 degrees from giving 59.99999.
    const precision = 1e4;
    return [x, y, z].map(angle => Math.round(degrees(angle) * precision) / precision);
}
