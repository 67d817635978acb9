.pragma library

// What the points of a track are to the user, whose table has a column for each key and its title
// in the user's language, and to the emulator. Texts have the group separators of their locale: the
// emulator takes an altitude of a thousand metres for none.

function tableRows(points, locale, coordinateDecimals, altitudeDecimals) {
    return points.map(point => ({
        "No.": point.index,
        "Time": point.timeString,
        "Latitude": point.latitude.toLocaleString(locale, "f", coordinateDecimals),
        "Longitude": point.longitude.toLocaleString(locale, "f", coordinateDecimals),
        "Altitude": point.altitude.toLocaleString(locale, "f", altitudeDecimals),
    }));
}

// The rows of the table as the location service takes them, with milliseconds between the points.
function trackRecord(rows, points) {
    return rows.map((row, index) => ({
        latitude: row["Latitude"],
        longitude: row["Longitude"],
        altitude: row["Altitude"],
        interval: points[index].interval,
    }));
}
