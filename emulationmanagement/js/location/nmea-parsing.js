.pragma library

// Reads the points of a track from the text of an NMEA 0183 log.
//
// Lines of unknown sentences are passed over; a known sentence that is not well formed spoils the
// log. Only the talker "GP" is known, and checksums are not verified.

// The decimals that are kept of degrees and of metres.
const latLongRoundingSize = 7;
const altRoundingSize = 2;

const millisPerSecond = 1000;
const millisPerMinute = 60 * millisPerSecond;
const millisPerHour = 60 * millisPerMinute;
const millisPerDay = 24 * millisPerHour;

const [lineFeed, carriageReturn, comma] = [0x0a, 0x0d, 0x2c];

const nonEmptyLine = /[^\r\n]+/g;
const restOfLine = /[^\r\n]*/y;
const timeOfDay = /^\d{6}(?:\.\d{2,3})?$/;
const sixDigits = /^\d{6}$/;
const decimal = /^\d+\.\d+$/;

// Fields of the patterns below.
const anything = "[^,\\r\\n]*";
const position = "(\\d+\\.\\d+),([NS]),(\\d+\\.\\d+),([EW])";
const time = "(\\d{6}(?:\\.\\d{2,3})?)";

// Engines without translations, as Node.js, say it in English.
if (typeof qsTr !== "function")
    globalThis.qsTr = text => text;

// How each sentence is read:
//  - line: patterns of a line with nothing out of place, whose groups are the values that count;
//  - fields: the fields that these groups are, the tag being field 0;
//  - accepts: whether other lines are well formed. Where any text may stand, commas may too, and
//    what follows stands farther to the right. Looking for the leftmost place of each finds a
//    place for all if there is one, in a time that grows with the line, as it does for one pattern
//    of many wildcards only until a line has many commas;
//  - point, time: made of the groups. A sentence without time has points without time stamps.
const sentences = {
    $GPRMC: {
        line: patternsOf("$GPRMC", time, anything, position, anything, anything, "(\\d{6})",
                         anything, ""),
        fields: [1, 3, 4, 5, 6, 9],
        accepts: fields => {
            const position = indexOf(fields, 3, fields.length, isPosition);
            return timeOfDay.test(fields[1]) && position >= 0
                && indexOf(fields, position + 6, fields.length - 2, isSixDigits) >= 0;
        },
        point: groups => createTrackPoint("$GPRMC", groups[2], groups[3], groups[4], groups[5], 0),
        time: (groups, prevDate) => parseDateFromNmea(groups[6], groups[1], prevDate),
    },
    $GPGGA: {
        line: patternsOf("$GPGGA", time, position, anything, anything, anything, "(\\d+\\.\\d+)",
                         anything, anything, anything, anything, ""),
        fields: [1, 2, 3, 4, 5, 9],
        accepts: fields => timeOfDay.test(fields[1]) && isPosition(fields, 2)
            && indexOf(fields, 9, fields.length - 5, isDecimal) >= 0,
        point: groups => createTrackPoint("$GPGGA", groups[2], groups[3], groups[4], groups[5],
                                          roundValue(Number(groups[6]), altRoundingSize)),
        time: (groups, prevDate) => parseDateFromNmea("", groups[1], prevDate),
    },
    $GPGLL: {
        line: patternsOf("$GPGLL", position, "(" + anything + ")"),
        fields: [1, 2, 3, 4, 5],
        accepts: () => false,
        point: groups => createTrackPoint("$GPGLL", groups[1], groups[2], groups[3], groups[4], 0),
        time: (groups, prevDate) => parseDateFromNmea("", checkedTime(groups[5]), prevDate),
    },
    $GPWPL: {
        line: patternsOf("$GPWPL", position, ""),
        fields: [1, 2, 3, 4],
        accepts: () => false,
        point: groups => createTrackPoint("$GPWPL", groups[1], groups[2], groups[3], groups[4], 0),
        time: () => null,
    },
};
const tags = Object.keys(sentences);

// Patterns for a place in a text: of a line that begins with these fields, and of none there. A
// pattern that fails is twice as quick as one that matches, of which the engine makes an object.
function patternsOf(tag, ...fields) {
    const line = "\\" + [tag, ...fields].join(",");
    return {usual: new RegExp(line, "y"), notUsual: new RegExp("(?!" + line + ")", "y")};
}

function isSixDigits(fields, index) {
    return sixDigits.test(fields[index]);
}

function isDecimal(fields, index) {
    return decimal.test(fields[index]);
}

function isPosition(fields, index) {
    return isDecimal(fields, index) && /^[NS]$/.test(fields[index + 1])
        && isDecimal(fields, index + 2) && /^[EW]$/.test(fields[index + 3]);
}

// The first index from begin on and before end that the fields are accepted at, or -1.
function indexOf(fields, begin, end, accept) {
    for (let index = begin; index < end; ++index) {
        if (accept(fields, index))
            return index;
    }
    return -1;
}

// Where the first line of a sentence begins, from a position of the text on; infinity for none.
function indexOfLine(text, tag, position) {
    for (;;) {
        const start = text.indexOf(tag, position);
        if (start < 0)
            return Infinity;
        position = start + tag.length;
        const before = start === 0 ? lineFeed : text.charCodeAt(start - 1);
        const after = position === text.length ? lineFeed : text.charCodeAt(position);
        if ((before === lineFeed || before === carriageReturn)
                && (after === comma || after === lineFeed || after === carriageReturn))
            return start;
    }
}

// The groups of the line of this sentence at a position, or null when it is not well formed.
function groupsOf(sentence, text, start) {
    sentence.line.usual.lastIndex = start;
    const usual = sentence.line.usual.exec(text);
    if (usual)
        return usual;
    restOfLine.lastIndex = start;
    const line = restOfLine.exec(text)[0];
    const fields = line.split(",");
    return sentence.accepts(fields) ? [line, ...sentence.fields.map(index => fields[index])] : null;
}

function isWellFormed(sentence, text, start) {
    sentence.line.notUsual.lastIndex = start;
    return !sentence.line.notUsual.test(text) || groupsOf(sentence, text, start) !== null;
}

// What loadNmeaLog() throws. Lines count from 1 and empty ones not at all; 0 stands for no line.
function syntaxError(message, incorrectLine) {
    return Object.assign(new SyntaxError(message), {incorrectLine});
}

// What loadNmeaLog() throws for a text without a known sentence.
function nothingKnownError(text) {
    const lines = countLines(text);
    if (lines === 0)
        return new TypeError(qsTr("NMEA file has only empty lines"));
    return syntaxError(qsTr("NMEA file has incorrect points format.\n"
                            + "Supported formats: GPRMC, GPGGA, GPGLL, GPWPL."), lines);
}

// Without its time, a sentence of positions says nothing of use for a track.
function checkedTime(text) {
    if (!/^\d{6}/.test(text)) {
        const message = qsTr('NMEA file has a position at "%1", which is not a time');
        throw new TypeError(message.replace("%1", () => text));
    }
    return text;
}

// The QML engine collects no garbage while a function runs: that of a long log would be forty times
// the log. Collecting it ever more rarely costs a time that grows as the log does.
function collectGarbage() {
    if (typeof gc === "function")
        gc();
}

function countLines(text) {
    let count = 0;
    nonEmptyLine.lastIndex = 0;
    while (nonEmptyLine.test(text))
        ++count;
    return count;
}

// Halves are rounded upwards.
function roundValue(value, precision) {
    const factor = Math.pow(10, precision);
    return Math.round(value * factor) / factor;
}

// Degrees of a text of degrees, as many digits as given, and minutes, "4807.038"; south and west
// are negative.
function parseCoordinateFromNmea(coordinateString, coordinateHemisphere, degreesSize) {
    const degrees = Number(coordinateString.substring(0, degreesSize));
    const minutes = Number(coordinateString.substring(degreesSize));
    const value = roundValue(degrees + minutes / 60, latLongRoundingSize);
    return coordinateHemisphere === "S" || coordinateHemisphere === "W" ? 0 - value : value;
}

function parseLatitudeFromNmea(latitudeString, latitudeHemisphere) {
    return parseCoordinateFromNmea(latitudeString, latitudeHemisphere, 2);
}

function parseLongitudeFromNmea(longitudeString, longitudeHemisphere) {
    return parseCoordinateFromNmea(longitudeString, longitudeHemisphere, 3);
}

// The time stamp of a time "hhmmss.sss" and a date "ddmmyy", which may be empty: then the day is
// that of the previous time stamp, or the one after it past midnight, or today.
//
// Only differences of time stamps are used. The month is taken as an index that counts from 0, so
// that a date lies a month late, and the day stands for the year as well: the stamps of a log jump
// by years at midnight and by other than a month's length at its end.
function parseDateFromNmea(dateString, timeString, prevDate) {
    const digits = Number(timeString.substring(0, 6));
    const hours = Math.floor(digits / 10000);
    const minutes = Math.floor(digits / 100) - 100 * hours;
    const time = hours * millisPerHour + minutes * millisPerMinute
        + digits % 100 * millisPerSecond
        + Math.round(Number("0." + timeString.substring(7)) * millisPerSecond);
    if (dateString) {
        const day = Number(dateString.substring(0, 2));
        const monthIndex = Number(dateString.substring(2, 4));
        const century = 2000 + day > new Date().getUTCFullYear() ? 1900 : 2000;
        return new Date(Date.UTC(century + day, monthIndex, day) + time);
    }
    const now = prevDate ? prevDate.getTime() : Date.now();
    const date = Math.floor(now / millisPerDay) * millisPerDay + time;
    return new Date(prevDate && date < now ? date + millisPerDay : date);
}

function millisBetween(firstDate, secondDate) {
    return secondDate.getTime() - firstDate.getTime();
}

// "hh:mm:ss.t" of milliseconds; whole days are left out.
function millisToPointTime(duration) {
    // the time of the day at the duration's end, which is as long since the start of 1970
    return duration < 0 ? "-" + millisToPointTime(-duration)
                        : new Date(duration).toISOString().substring(11, 21);
}

// Makes a point the next one of the track. Both times are null for a track without time stamps.
function setUpTrackPointTimeAndInterval(points, trackPoint, startTime, trackPointTime) {
    const previous = points[points.length - 1];
    trackPoint.index = points.length;
    trackPoint.time = previous && trackPointTime ? millisBetween(startTime, trackPointTime) : 0;
    trackPoint.interval = previous ? trackPoint.time - previous.time : 0;
    trackPoint.timeString = millisToPointTime(trackPoint.time);
}

function createTrackPoint(pointFormat, latString, latHemisphere, lonString, lonHemisphere, alt) {
    return {
        format: pointFormat,
        latitude: parseLatitudeFromNmea(latString, latHemisphere),
        longitude: parseLongitudeFromNmea(lonString, lonHemisphere),
        altitude: alt ?? 0,
        index: 0,
        time: 0,
        interval: 0,
        timeString: "",
    };
}

// The points of a log, all of the sentence that comes first. Throws a SyntaxError with a number
// incorrectLine when there are none to be had, or more than so many.
function loadNmeaLog(text, maximumPoints = Infinity) {
    if (text === "")
        throw syntaxError(qsTr("NMEA file is empty"), 0);
    const points = [];
    let format = null;
    let startTime = null;
    let previousTime = null;
    let nextCollection = 8192;
    // where the next line of each sentence begins
    const starts = tags.map(tag => indexOfLine(text, tag, 0));
    for (;;) {
        let next = 0;
        for (let i = 1; i < tags.length; ++i) {
            if (starts[i] < starts[next])
                next = i;
        }
        const start = starts[next];
        if (start === Infinity)
            break;
        const tag = tags[next];
        const sentence = sentences[tag];
        starts[next] = indexOfLine(text, tag, start + tag.length);
        // the first sentence decides what the track is made of
        if (format && tag !== format && isWellFormed(sentence, text, start))
            continue;
        if (points.length === nextCollection) {
            collectGarbage();
            nextCollection *= 2;
        }
        const groups = groupsOf(sentence, text, start);
        const point = groups && sentence.point(groups);
        const time = groups && sentence.time(groups, previousTime);
        // in a line that is not usual, anything may stand in the place of a value
        if (!groups || !isFinite(point.latitude + point.longitude + point.altitude)
                || (time && isNaN(time.getTime()))) {
            throw syntaxError(qsTr("Incorrect NMEA file"),
                              countLines(text.substring(0, start + 1)));
        }
        if (points.length === maximumPoints) {
            const message = qsTr("NMEA file has more than %1 points");
            throw syntaxError(message.replace("%1", maximumPoints), 0);
        }
        format = tag;
        previousTime = time;
        startTime = startTime ?? time;
        setUpTrackPointTimeAndInterval(points, point, startTime, time);
        points.push(point);
    }
    if (points.length === 0)
        throw nothingKnownError(text);
    return points;
}

// Whether any but the first of the points, which always has none, lies at no time.
function trackHasPointsWithoutDateTime(points) {
    for (let i = 1; i < points.length; ++i) {
        if (points[i].time === 0)
            return true;
    }
    return false;
}
