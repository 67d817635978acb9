.pragma library

// The points of a track, whatever the format of the file that they were read from.

// The decimals of degrees and of metres.
const latLongRoundingSize = 7;
const altRoundingSize = 2;

// Rounds halves upwards.
function roundValue(value, precision) {
    const factor = Math.pow(10, precision);
    return Math.round(value * factor) / factor;
}

// Returns a point without its place in a track, which setUpTrackPointTimeAndInterval() sets.
// Latitude and longitude are degrees, north and east positive; the altitude is metres.
function pointAt(format, latitude, longitude, altitude) {
    return {format, latitude, longitude, altitude, index: 0, time: 0, interval: 0, timeString: ""};
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
    trackPoint.timeString = millisToPointTime(trackPoint.time);
}

// Whether a point other than the first, whose time is always 0, has the time 0.
function trackHasPointsWithoutDateTime(points) {
    for (let i = 1; i < points.length; ++i) {
        if (points[i].time === 0)
            return true;
    }
    return false;
}
