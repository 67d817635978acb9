.pragma library
.import "track-points.js" as TrackPoints

// Reads the points of a track from the text of an NMEA 0183 log.
//
// A log is a text with a sentence a line. A sentence is a tag, which is the talker and the type,
// and further fields, all separated by commas. Lines of unknown sentences are skipped; a malformed
// line of a known sentence makes the whole log invalid. "GP" is the only known talker. Checksums
// are not verified.

// The functions among these can also be called as functions of this script.
const {
    altRoundingSize, latLongRoundingSize, millisBetween, millisToPointTime, pointAt, roundValue,
    setUpTrackPointTimeAndInterval, trackHasPointsWithoutDateTime,
} = TrackPoints;

const millisPerSecond = 1000;
const millisPerMinute = 60 * millisPerSecond;
const millisPerHour = 60 * millisPerMinute;
const millisPerDay = 24 * millisPerHour;

const [lineFeed, carriageReturn, comma] = [0x0a, 0x0d, 0x2c];

// Patterns of fields.
const anything = "[^,\\r\\n]*";
const decimal = "\\d+\\.\\d+";
const timeOfDay = "\\d{6}(?:\\.\\d{2,3})?";
const sixDigits = "\\d{6}";
const coordinates = [decimal, "[NS]", decimal, "[EW]"].join(","); // four fields
const isDecimal = fieldTest(decimal, 1);
const isTimeOfDay = fieldTest(timeOfDay, 1);
const isSixDigits = fieldTest(sixDigits, 1);
const areCoordinates = fieldTest(coordinates, 4);

// The known sentences by their tags:
//  - position, altitude, time, date: the numbers of these fields, which count from the tag, number
//    0; null where the sentence has no such field. The position is the first of its four fields.
//  - unusual: matches where no usual line of this sentence begins. A usual line has all fields in
//    their places. This is the negation of a pattern because most lines are usual, and because the
//    engine creates an object for each match.
//  - acceptsShifted: whether the fields of an unusual line are those of a well-formed line. Free
//    text may contain commas, which shift all later fields to the right. Looking for the leftmost
//    place of each field takes a time that is proportional to the length of the line. One pattern
//    with a wildcard for each text would try all combinations of commas.
const sentences = {
    $GPRMC: {
        position: 3, altitude: null, time: 1, date: 9,
        unusual: notAt("\\$GPRMC", timeOfDay, anything, coordinates, anything, anything, sixDigits,
                       anything, ""),
        acceptsShifted: fields => {
            const position = findField(fields, areCoordinates, 3, fields.length);
            return isTimeOfDay(fields, 1) && position >= 0
                && findField(fields, isSixDigits, position + 6, fields.length - 2) >= 0;
        },
    },
    $GPGGA: {
        position: 2, altitude: 9, time: 1, date: null,
        unusual: notAt("\\$GPGGA", timeOfDay, coordinates, anything, anything, anything, decimal,
                       anything, anything, anything, anything, ""),
        acceptsShifted: fields => isTimeOfDay(fields, 1) && areCoordinates(fields, 2)
            && findField(fields, isDecimal, 9, fields.length - 5) >= 0,
    },
    $GPGLL: {
        position: 1, altitude: null, time: 5, date: null,
        unusual: notAt("\\$GPGLL", coordinates, ""),
        acceptsShifted: () => false,
    },
    $GPWPL: {
        position: 1, altitude: null, time: null, date: null,
        unusual: notAt("\\$GPWPL", coordinates, ""),
        acceptsShifted: () => false,
    },
};
const talker = "$GP";
const tags = Object.keys(sentences);

// Matches a line, or its first ten fields. Group n is field n, or undefined if the line has fewer
// fields. This is quicker than to split the line.
const firstFields = new RegExp(anything + `(?:,(${anything}))?`.repeat(9), "y");
const nonEmptyLine = /[^\r\n]+/g;
const restOfLine = /[^\r\n]*/y;

// The place in the text where garbage is first collected. Each later place is a multiple of the
// previous one, so that all collections together take a time that is proportional to the length of
// the log.
const firstCollection = 500000;
const collectionGrowth = 1.5;

// Returns a pattern that matches at each place of a text where no line begins with these fields.
function notAt(...fields) {
    return new RegExp("(?!" + fields.join(",") + ")", "y");
}

// Returns a function that tells whether the fields at an index match a pattern of this many fields.
function fieldTest(pattern, count) {
    const whole = new RegExp("^" + pattern + "$");
    return (fields, index) => whole.test(fields.slice(index, index + count).join(","));
}

// Returns the first index from begin to before end at which accept() is true, or -1.
function findField(fields, accept, begin, end) {
    for (let index = begin; index < end; ++index) {
        if (accept(fields, index))
            return index;
    }
    return -1;
}

// Returns the tag of the known sentence that begins at a place of the text, or null.
function tagAt(text, start) {
    const before = start === 0 ? lineFeed : text.charCodeAt(start - 1);
    if (before !== lineFeed && before !== carriageReturn)
        return null;
    for (let i = 0; i < tags.length; ++i) {
        if (text.startsWith(tags[i], start)) {
            const end = start + tags[i].length;
            const after = end === text.length ? lineFeed : text.charCodeAt(end);
            return after === comma || after === lineFeed || after === carriageReturn ? tags[i]
                                                                                     : null;
        }
    }
    return null;
}

function isWellFormed(sentence, text, start) {
    sentence.unusual.lastIndex = start;
    if (!sentence.unusual.test(text))
        return true;
    restOfLine.lastIndex = start;
    return sentence.acceptsShifted(restOfLine.exec(text)[0].split(","));
}

function fieldsAt(text, start) {
    firstFields.lastIndex = start;
    return firstFields.exec(text);
}

function pointOf(tag, fields) {
    const {position, altitude} = sentences[tag];
    const metres = altitude === null ? 0 : roundValue(Number(fields[altitude]), altRoundingSize);
    return createTrackPoint(tag, fields[position], fields[position + 1], fields[position + 2],
                            fields[position + 3], metres);
}

// Returns the time stamp of a line, or null if its sentence has no time.
function timeStampOf(sentence, fields, prevDate) {
    if (sentence.time === null)
        return null;
    const text = fields[sentence.time];
    // A $GPGLL line is well-formed without its time, but is of no use for a track.
    if (sentence === sentences.$GPGLL && !/^\d{6}/.test(text)) {
        const message = qsTr('NMEA file has a position at "%1", which is not a time');
        throw new TypeError(message.replace("%1", () => text));
    }
    return parseDateFromNmea(sentence.date === null ? "" : fields[sentence.date], text, prevDate);
}

// Returns an error with the number of a line: empty lines do not count, the first line is number 1,
// and 0 means that the error has no line.
function syntaxError(message, incorrectLine) {
    return Object.assign(new SyntaxError(message), {incorrectLine});
}

function incorrectLineError(text, start) {
    return syntaxError(qsTr("Incorrect NMEA file"), countLines(text.substring(0, start + 1)));
}

// Returns the error for a text without a known sentence.
function nothingKnownError(text) {
    const lines = countLines(text);
    if (lines === 0)
        return new TypeError(qsTr("NMEA file has only empty lines"));
    return syntaxError(qsTr("NMEA file has incorrect points format.\n"
                            + "Supported formats: GPRMC, GPGGA, GPGLL, GPWPL."), lines);
}

// The QML engine collects no garbage while a function runs. The garbage of a long log would take
// forty times as much memory as the log.
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

// Converts a text of degrees and minutes, for example "4807.038", to degrees; degreesSize is the
// number of digits of the degrees. South and west are negative.
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

// Returns the time stamp of a time "hhmmss.sss" and a date "ddmmyy". If the date is empty, the day
// is that of the previous time stamp, or the next day if the time is earlier than the previous one.
// Without a previous time stamp, the day is today.
//
// Two oddities are required. The number of the month is used as an index that counts from 0, so the
// date is one month late. The number of the day is used as the year, too. Only differences between
// time stamps are used, so this shows at midnight, where they jump by years, and at the end of a
// month.
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

// The altitude is metres.
function createTrackPoint(pointFormat, latString, latHemisphere, lonString, lonHemisphere, alt) {
    return pointAt(pointFormat, parseLatitudeFromNmea(latString, latHemisphere),
                   parseLongitudeFromNmea(lonString, lonHemisphere), alt ?? 0);
}

// Returns the points of a log. The type of the first known sentence decides which sentences become
// points. Throws an error for the user if the log is invalid, has no points or has more than
// maximumPoints. A SyntaxError has the number incorrectLine, see syntaxError().
function loadNmeaLog(text, maximumPoints = Infinity) {
    if (text === "")
        throw syntaxError(qsTr("NMEA file is empty"), 0);
    const points = [];
    let format = null;
    let startTime = null;
    let previousTime = null;
    let nextCollection = firstCollection;
    // Searching for the talker is quicker than splitting the text into lines.
    for (let start = text.indexOf(talker); start >= 0; start = text.indexOf(talker, start + 1)) {
        const tag = tagAt(text, start);
        if (tag === null)
            continue;
        const sentence = sentences[tag];
        if (!isWellFormed(sentence, text, start))
            throw incorrectLineError(text, start);
        if (format !== null && tag !== format)
            continue;
        if (start >= nextCollection) {
            collectGarbage();
            nextCollection = collectionGrowth * start;
        }
        const fields = fieldsAt(text, start);
        const point = pointOf(tag, fields);
        const time = timeStampOf(sentence, fields, previousTime);
        // In a line with shifted fields, the fields of the values may contain anything.
        if (!isFinite(point.latitude + point.longitude + point.altitude)
                || (time && isNaN(time.getTime())))
            throw incorrectLineError(text, start);
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
