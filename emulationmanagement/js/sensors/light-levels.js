.pragma library

// The index of the last level whose lux is at most the given one, or -1 when all are above it. The
// levels must ascend.
function indexOf(levels, lux) {
    return levels.filter(level => level.lux <= lux).length - 1;
}
