.pragma library

// Reads logs in a simple way, with one pattern with wildcards for each sentence and with integer
// arithmetic. This is slow for lines with many commas.

const time = "\\d{6}(\\.\\d{2,3})?";
const position = "\\d+\\.\\d+,(N|S),\\d+\\.\\d+,(E|W)";
// By tag: the pattern after the tag, and the numbers of the fields of position, altitude, time and
// date. The number 0 means that the sentence has no such field.
const sentences = {
    $GPRMC: [`${time},.*,${position},.*,.*,\\d{6},.*,.*`, 3, 0, 1, 9],
    $GPGGA: [`${time},${position},.*,.*,.*,\\d+\\.\\d+,.*,.*,.*,.*,.*`, 2, 9, 1, 0],
    $GPGLL: [`${position},(${time},)?.*`, 1, 0, 5, 0],
    $GPWPL: [`${position},.*`, 1, 0, 0, 0],
};

function digits(text, begin, end) {
    return text.slice(begin, end).split("").reduce((sum, c) => sum * 10 + Number(c), 0);
}

function coordinate(text, degreeDigits, hemisphere) {
    const minutes = Number(text.slice(degreeDigits));
    const size = Math.round((Number(text.slice(0, degreeDigits)) + minutes / 60) * 1e7) / 1e7;
    return ["S", "W"].includes(hemisphere) ? -size : size;
}

function stamp(date, text, previous) {
    const day = 24 * 60 * 60 * 1000;
    const fraction = Math.round(Number("0." + text.slice(7)) * 1000);
    const ofDay = ((digits(text, 0, 2) * 60 + digits(text, 2, 4)) * 60 + digits(text, 4, 6)) * 1000
        + fraction;
    if (date) {
        const d = digits(date, 0, 2);
        const result = new Date(0);
        result.setUTCFullYear((2000 + d > new Date().getFullYear() ? 1900 : 2000) + d,
                              digits(date, 2, 4), d);
        return result.getTime() + ofDay;
    }
    const now = previous ?? Date.now();
    const result = Math.floor(now / day) * day + ofDay; // now is negative before 1970
    return previous !== null && result < previous ? result + day : result;
}

// Returns the points as [latitude, longitude, altitude, time, interval], or the number of the
// incorrect line.
function read(text) {
    const points = [];
    let tag = null, start = null, previous = null;
    const lines = text.split(/[\r\n]/).filter(line => line.length > 0);
    for (const [index, line] of lines.entries()) {
        const fields = line.split(",");
        if (!(fields[0] in sentences))
            continue;
        const [pattern, at, altitude, timeAt, dateAt] = sentences[fields[0]];
        if (!new RegExp(`^\\${fields[0]},${pattern}$`).test(line))
            return index + 1;
        if (tag !== null && tag !== fields[0])
            continue;
        tag = fields[0];
        previous = timeAt ? stamp(dateAt ? fields[dateAt] : "", fields[timeAt], previous) : null;
        start = start ?? previous;
        const at0 = points.length === 0 || previous === null ? 0 : previous - start;
        points.push([
            coordinate(fields[at], 2, fields[at + 1]),
            coordinate(fields[at + 2], 3, fields[at + 3]),
            altitude ? Math.round(Number(fields[altitude]) * 100) / 100 : 0,
            at0, points.length === 0 ? 0 : at0 - points[points.length - 1][3],
        ]);
        // free text with commas may have shifted the values
        if ([previous, ...points[points.length - 1]].some(isNaN))
            return index + 1;
    }
    return points.length > 0 ? points : lines.length;
}
