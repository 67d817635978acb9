.pragma library
.import "number-texts.js" as NumberTexts

// Turns the points of a track into rows of the user's table and into the record for the emulator.

const {degreesText, metresText} = NumberTexts;

// The keys name the columns of the table. Their titles are in the user's language.
function tableRows(points) {
    return points.map(point => ({
        "No.": point.index,
        "Time": point.timeString,
        "Latitude": degreesText(point.latitude),
        "Longitude": degreesText(point.longitude),
        "Altitude": metresText(point.altitude),
    }));
}

// Returns the points as GPSEmulationManager::loadTrack() takes them. Intervals are milliseconds.
//
// It is required that these are the texts of the table. They have group separators, which the
// manager does not read, so altitudes from 1000 m reach the emulator as 0.
function trackRecord(rows, points) {
    return rows.map((row, index) => ({
        latitude: row["Latitude"],
        longitude: row["Longitude"],
        altitude: row["Altitude"],
        interval: points[index].interval,
    }));
}
