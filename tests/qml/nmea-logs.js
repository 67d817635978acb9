.pragma library

// Writes logs as receivers write them.

// Returns a repeatable source of random integers from 0 to below a limit.
function random(seed) {
    let state = seed;
    return limit => {
        state = (state * 1103515245 + 12345) % 0x80000000;
        return Math.floor(state / 0x80000000 * limit);
    };
}

function sentence(body) {
    let sum = 0;
    for (let i = 0; i < body.length; ++i)
        sum ^= body.charCodeAt(i);
    return "$" + body + "*" + (sum < 16 ? "0" : "") + sum.toString(16).toUpperCase();
}

function padded(number, size) {
    return String(number).padStart(size, "0");
}

// Returns a log. The seed chooses one or all types of sentences, one or all talkers, the fractions
// of seconds, the first time of day and the line breaks.
function log(seed, epochs) {
    const next = random(seed);
    const types = [["RMC"], ["GGA"], ["GLL"], ["WPL"], ["GGA", "RMC", "GSV", "GLL", "GSA"]][next(5)];
    const talkers = [["GP"], ["GP", "GN", "GL"]][next(2)];
    const fraction = ["", ".00", ".500"][next(3)];
    const step = 1 + next(20000);
    const lines = [];
    for (let epoch = 0, second = next(86400); epoch < epochs; ++epoch, second += step) {
        const time = padded(Math.floor(second / 3600) % 24, 2)
            + padded(Math.floor(second / 60) % 60, 2) + padded(second % 60, 2) + fraction;
        const date = padded(1 + Math.floor(second / 86400) % 28, 2) + "0226";
        const latitude = padded(next(90), 2) + padded(next(60), 2) + "." + padded(next(1e5), 5);
        const longitude = padded(next(180), 3) + padded(next(60), 2) + "." + padded(next(1e4), 4);
        const position = `${latitude},${"NS"[next(2)]},${longitude},${"EW"[next(2)]}`;
        const bodies = {
            RMC: `RMC,${time},A,${position},,,${date},,,A`,
            GGA: `GGA,${time},${position},1,08,0.9,${next(9000)}.${next(10)},M,46.9,M,,`,
            GLL: `GLL,${position},${time},A`,
            WPL: `WPL,${position},P${epoch}`,
            GSV: "GSV,3,1,11,03,03,111,00,04,15,270,00",
            GSA: "GSA,A,3,,,,,,16,18,,22,24,,,3.6,2.1,2.2",
        };
        for (const type of types)
            lines.push(sentence(talkers[next(talkers.length)] + bodies[type]));
    }
    return lines.join(["\n", "\r\n", "\r\n\r\n"][next(3)]) + ["", "\n"][next(2)];
}

// Returns a log with some characters lost, doubled or replaced.
function damaged(text, seed) {
    const next = random(seed);
    let result = text;
    for (let i = next(3); i >= 0; --i) {
        const at = next(result.length);
        const inserted = ["", ",", ".", "9", "S", "\n", "$GPGGA,", "\u0000", result.slice(at, at + 9),
                          ",,"][next(10)];
        result = result.slice(0, at) + inserted + result.slice(at + next(3));
    }
    return result;
}
