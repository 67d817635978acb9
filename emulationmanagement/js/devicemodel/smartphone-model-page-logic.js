.pragma library
.import "three.js" as Three

// What a device that is turned and moved reads, and how keys and mouse turn and move it.
//
// Triples are arrays of x, y and z. The world's x axis points to the viewer's right, y up and z to
// the viewer. Rotations are Euler angles in degrees: about x, then about the turned y, then about
// the turned z.

// The attitudes of the buttons for the device's rotation, in their order.
const presets = [[0, 0, 0], [0, 0, -90], [0, 0, 180], [0, 0, 90], [-90, 0, 0], [90, 0, 0]];

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

// A value after a step, which may begin but not go on outside the range.
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

// The constant acceleration that leads from one position to the next within a period, starting at
// a speed. SI units.
function linearAcceleration(position, previousPosition, initialSpeed, period) {
    return 2 * (position - previousPosition) / (period * period) - 2 * initialSpeed / period;
}

// The accelerometer's reading in m/s²: the pull against gravity and an acceleration along the
// world's axes. The device's x axis takes vertical and depth acceleration with their sign reversed.
function accelerometerReading(rotation, gravity, acceleration) {
    const axes = worldAxes(rotation);
    const [ax, ay, az] = acceleration;
    return [-1, 1, 1].map((sign, i) => gravity * axes.y[i] + ax * axes.x[i]
                                       + sign * (ay * axes.y[i] + az * axes.z[i]));
}

// Turns per second about each Euler axis. An axis that was wrapped between the two rotations
// counts as turned forwards, through 180 degrees.
function rotationFrequencies(rotation, previousRotation, wrapped, period) {
    return rotation.map((angle, i) => {
        const previous = previousRotation[i];
        const difference = wrapped[i] ? wholeTurn - Math.abs(angle) - Math.abs(previous)
                                      : angle - previous;
        return difference / (wholeTurn * period);
    });
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
        // there is no angle to a field of length 0
        return fieldVector.length() * Math.cos(isNaN(angle) ? Math.PI / 2 : angle);
    });
}

// What is sent of an acceleration in m/s², in whole thousandths of g; the fraction is cut off.
function wireAcceleration(acceleration, unitsPerMetre) {
    // 30 degrees are to give 500, and not 499 for a hair that is missing in the last digit
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

// How an arrow key turns the device, in degrees about each axis; nothing for another key.
function arrowTurn(key, shift) {
    switch (key) {
    case Qt.Key_Left: return shift ? [0, -1, 0] : [0, 0, -1];
    case Qt.Key_Right: return shift ? [0, 1, 0] : [0, 0, 1];
    case Qt.Key_Up: return [1, 0, 0];
    case Qt.Key_Down: return [-1, 0, 0];
    }
}

// How an arrow key moves the device, in steps along each axis; nothing for another key.
function arrowMove(key) {
    switch (key) {
    case Qt.Key_Left: return [-1, 0, 0];
    case Qt.Key_Right: return [1, 0, 0];
    case Qt.Key_Up: return [0, 1, 0];
    case Qt.Key_Down: return [0, -1, 0];
    }
}

// Where the middle of the moved device is seen in the model's area.
function originPoint(width, height, displacement) {
    const [x, y, z] = displacement;
    const distance = 1 + Math.abs(z);
    return Qt.point(width / 2 + x * width / (8 * distance),
                    height / 2 - y * height / (4 * distance));
}

// The angle in degrees by which a pointer that passes the origin's vertical line turns about the
// axis to the viewer; 0 when it stays on its side.
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
    // close to the origin a small way of the pointer is a wide angle
    const distance = Math.abs(to.y);
    const damping = distance > 30 ? 1 : Math.sin(radians(distance));
    const down = Math.sign(pointer.y - base.y);
    return angle * damping * (wasRight ? down : -down);
}

// How far a pointer on its way from base to pointer turns the device about the world's axes, in
// degrees.
function dragTurn(origin, base, pointer) {
    return [(pointer.y - base.y) / 2, (pointer.x - base.x) / 2,
            signedAngle(origin, base, pointer) / 2];
}

// A rotation after turns, in degrees, about the world's x, y and z axes.
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
    return [x, y, z].map(degrees);
}
