.pragma library

// Rotations as quaternions [w, x, y, z] that are made of axes and angles, for comparison with the
// formulas of the pages.

function about(axis, degrees) {
    const half = degrees * Math.PI / 360;
    const result = [Math.cos(half), 0, 0, 0];
    result[axis + 1] = Math.sin(half);
    return result;
}

function product(left, right) {
    const [a, b, c, d] = left;
    const [e, f, g, h] = right;
    return [a * e - b * f - c * g - d * h, a * f + b * e + c * h - d * g,
            a * g - b * h + c * e + d * f, a * h + b * g - c * f + d * e];
}

function inverse(rotation) {
    return rotation.map((part, i) => i === 0 ? part : -part);
}

// A rotation after further turns, in degrees, about the world's axes.
function turned(rotation, turns) {
    return turns.reduce((result, angle, axis) => product(about(axis, angle), result), rotation);
}

// Of Euler angles.
function attitude(rotation) {
    return product(product(about(0, rotation[0]), about(1, rotation[1])), about(2, rotation[2]));
}

// A vector of the world as the turned device sees it.
function seen(rotation, vector) {
    const turned = attitude(rotation);
    return product(product(inverse(turned), [0, ...vector]), turned).slice(1);
}

// The angle in degrees between two attitudes.
function difference(left, right) {
    const [w] = product(inverse(left), right);
    return 2 * Math.acos(Math.min(1, Math.abs(w))) * 180 / Math.PI;
}

// Calls check with Euler angles and a magnetic field. They are the same in each run.
function forEachAttitude(count, check) {
    let seed = 1;
    const random = limit => {
        seed = seed * 16807 % 2147483647;
        return (2 * seed / 2147483647 - 1) * limit;
    };
    const triple = limit => [random(limit), random(limit), random(limit)];
    for (let i = 0; i < count; ++i)
        check(triple(180), triple(60));
}
