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
    TrackPoint, altRoundingSize, latLongRoundingSize, millisBetween, millisToPointTime, roundValue,
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
const coordinates = [decimal, "[NS]", decimal, "[EW]"]; // four fields
const isDecimal = fieldTest(decimal, 1);
const isTimeOfDay = fieldTest(timeOfDay, 1);
const isSixDigits = fieldTest(sixDigits, 1);
const areCoordinates = fieldTest(coordinates.join(","), 4);

// The known sentences by their tags:
//  - usual: matches at a place of a text where a usual line of this sentence begins. A usual line
//    has all fields in their places. The groups of the match are the values.
//  - position, altitude, time, date: the numbers of these groups, or null where the sentence has no
//    such value. The position is the first of its four groups.
//  - fields: the numbers of the fields of these groups, which count from the tag, number 0.
//  - acceptsShifted: whether the fields of an unusual line are those of a well-formed line. Free
//    text may contain commas, which shift all later fields to the right. Looking for the leftmost
//    place of each field takes a time that is proportional to the length of the line. One pattern
//    with a wildcard for each text would try all combinations of commas.
const sentences = {
    $GPRMC: {
        usual: lineOf("\\$GPRMC", value(timeOfDay), anything, ...coordinates.map(value), anything,
                      anything, value(sixDigits), anything, ""),
        time: 1, position: 2, date: 6, altitude: null,
        fields: [1, 3, 4, 5, 6, 9],
        acceptsShifted: fields => {
            const position = findField(fields, areCoordinates, 3, fields.length);
            return isTimeOfDay(fields, 1) && position >= 0
                && findField(fields, isSixDigits, position + 6, fields.length - 2) >= 0;
        },
    },
    $GPGGA: {
        usual: lineOf("\\$GPGGA", value(timeOfDay), ...coordinates.map(value), anything, anything,
                      anything, value(decimal), anything, anything, anything, anything, ""),
        time: 1, position: 2, altitude: 6, date: null,
        fields: [1, 2, 3, 4, 5, 9],
        acceptsShifted: fields => isTimeOfDay(fields, 1) && areCoordinates(fields, 2)
            && findField(fields, isDecimal, 9, fields.length - 5) >= 0,
    },
    $GPGLL: {
        usual: lineOf("\\$GPGLL", ...coordinates.map(value), value(anything)),
        position: 1, time: 5, altitude: null, date: null,
        fields: [1, 2, 3, 4, 5],
        acceptsShifted: () => false,
    },
    $GPWPL: {
        usual: lineOf("\\$GPWPL", ...coordinates.map(value), ""),
        position: 1, altitude: null, time: null, date: null,
        fields: [1, 2, 3, 4],
        acceptsShifted: () => false,
    },
};
const talker = "$GP";
const tags = Object.keys(sentences);

const nonEmptyLine = /[^\r\n]+/g;
const restOfLine = /[^\r\n]*/y;

// The length of the text whose points are handed over at once, see loadNmeaLog().
const batchLength = 32 * 1024;
// The number of lines that are counted before an empty batch, which frees memory and may end the
// reading.
const linesCountedAtOnce = 10000;

// Returns a pattern that matches where a line begins with these fields.
function lineOf(...fields) {
    return new RegExp(fields.join(","), "y");
}

// Returns a pattern of a field that becomes a group of its match.
function value(pattern) {
    return `(${pattern})`;
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

// Returns the values of the line that begins at a place of the text, by the numbers of the groups
// of its sentence, or null if the line is not well-formed.
function valuesAt(text, start, sentence) {
    sentence.usual.lastIndex = start;
    const match = sentence.usual.exec(text);
    if (match)
        return match;
    restOfLine.lastIndex = start;
    const fields = restOfLine.exec(text)[0].split(",");
    return sentence.acceptsShifted(fields) ? [null, ...sentence.fields.map(index => fields[index])]
                                           : null;
}

function pointOf(tag, sentence, values) {
    const {position, altitude} = sentence;
    const metres = altitude === null ? 0 : roundValue(Number(values[altitude]), altRoundingSize);
    return createTrackPoint(tag, values[position], values[position + 1], values[position + 2],
                            values[position + 3], metres);
}

// Returns the time stamp of a line, or null if its sentence has no time.
function timeStampOf(sentence, values, prevDate) {
    if (sentence.time === null)
        return null;
    const text = values[sentence.time];
    // A $GPGLL line is well-formed without its time, but is of no use for a track.
    if (sentence === sentences.$GPGLL && !/^\d{6}/.test(text)) {
        const message = qsTr('NMEA file has a position at "%1", which is not a time');
        throw new TypeError(message.replace("%1", () => text));
    }
    return parseDateFromNmea(sentence.date === null ? "" : values[sentence.date], text, prevDate);
}

// Returns an error with the number of a line: empty lines do not count, the first line is number 1,
// and 0 means that the error has no line.
function syntaxError(message, incorrectLine) {
    return Object.assign(new SyntaxError(message), {incorrectLine});
}

function incorrectLineError(text, start, takeBatch) {
    return syntaxError(qsTr("Incorrect NMEA file"),
                       countLines(text.substring(0, start + 1), takeBatch));
}

// Returns the error for a text without a known sentence.
function nothingKnownError(text, takeBatch) {
    const lines = countLines(text, takeBatch);
    if (lines === 0)
        return new TypeError(qsTr("NMEA file has only empty lines"));
    return syntaxError(qsTr("NMEA file has incorrect points format.\n"
                            + "Supported formats: GPRMC, GPGGA, GPGLL, GPWPL."), lines);
}

function countLines(text, takeBatch) {
    let count = 0;
    nonEmptyLine.lastIndex = 0;
    while (nonEmptyLine.test(text)) {
        if (++count % linesCountedAtOnce === 0)
            takeBatch?.([], 0, text.length);
    }
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
    return new TrackPoint(pointFormat, parseLatitudeFromNmea(latString, latHemisphere),
                          parseLongitudeFromNmea(lonString, lonHemisphere), alt ?? 0);
}

// Returns the points of a log. The type of the first known sentence decides which sentences become
// points. Throws an error for the user if the log is invalid, has no points or has more than
// maximumPoints. A SyntaxError has the number incorrectLine, see syntaxError().
//
// If takeBatch is a function, it gets the points while the log is being read, so that they need not
// all be kept: takeBatch(points, begin, end) gets those from index begin on, and the place in the
// text that has been reached. It may get no points, and may throw an error to end the reading. The
// returned array then has only the last points.
function loadNmeaLog(text, maximumPoints = Infinity, takeBatch = null) {
    if (text === "")
        throw syntaxError(qsTr("NMEA file is empty"), 0);
    let points = [];
    let begin = 0; // of the batch in points
    let batchEnd = batchLength; // in the text
    let dropped = 0; // points that are no longer in points
    let format = null;
    let startTime = null;
    let previousTime = null;
    // Searching for the talker is quicker than splitting the text into lines.
    for (let start = text.indexOf(talker); start >= 0; start = text.indexOf(talker, start + 1)) {
        if (takeBatch && start >= batchEnd) {
            takeBatch(points, begin, start);
            batchEnd = start + batchLength;
            const last = points.slice(-1); // the next point continues from it
            dropped += points.length - last.length;
            points = last;
            begin = last.length;
        }
        const tag = tagAt(text, start);
        if (tag === null)
            continue;
        const sentence = sentences[tag];
        const values = valuesAt(text, start, sentence);
        if (!values)
            throw incorrectLineError(text, start, takeBatch);
        if (format !== null && tag !== format)
            continue;
        const point = pointOf(tag, sentence, values);
        const time = timeStampOf(sentence, values, previousTime);
        // In a line with shifted fields, the fields of the values may contain anything.
        if (!isFinite(point.latitude + point.longitude + point.altitude)
                || (time && isNaN(time.getTime())))
            throw incorrectLineError(text, start, takeBatch);
        if (dropped + points.length === maximumPoints) {
            const message = qsTr("NMEA file has more than %1 points");
            throw syntaxError(message.replace("%1", maximumPoints), 0);
        }
        format = tag;
        previousTime = time;
        startTime = startTime ?? time;
        setUpTrackPointTimeAndInterval(points, point, startTime, time);
        point.index += dropped;
        points.push(point);
    }
    if (points.length === 0)
        throw nothingKnownError(text, takeBatch);
    takeBatch?.(points, begin, text.length);
    return points;
}
