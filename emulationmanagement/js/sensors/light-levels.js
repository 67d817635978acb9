.pragma library

// The index of the last of the levels, which ascend, whose lux is not above the given one; -1 when
// all are.
function indexOf(levels, lux) {
    return levels.filter(level => level.lux <= lux).length - 1;
}
