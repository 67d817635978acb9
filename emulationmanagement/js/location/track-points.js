.pragma library

// The points of a track, whatever the format of the file that they were read from.

// The decimals of degrees and of metres.
const latLongRoundingSize = 7;
const altRoundingSize = 2;

// Latitude and longitude are degrees, north and east positive; the altitude is metres.
// setUpTrackPointTimeAndInterval() sets the place in the track; its times are milliseconds.
class TrackPoint {
    constructor(format, latitude, longitude, altitude) {
        this.format = format;
        this.latitude = latitude;
        this.longitude = longitude;
        this.altitude = altitude;
        this.index = 0;
        this.time = 0;
        this.interval = 0;
    }

    // Made when it is read, because only few points of a long track are shown.
    get timeString() {
        return millisToPointTime(this.time);
    }
}

// Rounds halves upwards.
function roundValue(value, precision) {
    const factor = 10 ** precision;
    return Math.round(value * factor) / factor;
}

function millisBetween(firstDate, secondDate) {
    return secondDate.getTime() - firstDate.getTime();
}

// Writes milliseconds as "hh:mm:ss.t". Starts at 0 again after each day.
function millisToPointTime(duration) {
    // A date is so many milliseconds after midnight of 1 January 1970 (UTC).
    return duration < 0 ? "-" + millisToPointTime(-duration)
                        : new Date(duration).toISOString().substring(11, 21);
}

// Makes a point the next one of a track. Both dates are null in a track without time stamps.
function setUpTrackPointTimeAndInterval(points, trackPoint, startTime, trackPointTime) {
    const previous = points[points.length - 1];
    trackPoint.index = points.length;
    trackPoint.time = previous && trackPointTime ? millisBetween(startTime, trackPointTime) : 0;
    trackPoint.interval = previous ? trackPoint.time - previous.time : 0;
}

// Whether a point other than the first, whose time is always 0, has the time 0.
function trackHasPointsWithoutDateTime(points) {
    for (let i = 1; i < points.length; ++i) {
        if (points[i].time === 0)
            return true;
    }
    return false;
}

// Returns an ArrayBuffer with the points from an index on, as TrackReading::append() takes them:
// the numbers latitude, longitude, altitude, time and interval of each point.
function packedPoints(points, begin) {
    const numbers = new Float64Array(5 * (points.length - begin));
    let next = 0;
    for (let i = begin; i < points.length; ++i) {
        const point = points[i];
        numbers[next++] = point.latitude;
        numbers[next++] = point.longitude;
        numbers[next++] = point.altitude;
        numbers[next++] = point.time;
        numbers[next++] = point.interval;
    }
    return numbers.buffer;
}
