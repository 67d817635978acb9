import QtQuick
import QtTest

import "qrc:/emulationmanagement/js/location/nmea-parsing.js" as Nmea

import "nmea-logs.js" as Logs
import "nmea-reference.js" as Reference

TestCase {
    id: test

    readonly property string gga: "$GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,*47"
    readonly property string unknown: "NMEA file has incorrect points format.\n"
                                      + "Supported formats: GPRMC, GPGGA, GPGLL, GPWPL."

    name: "NmeaParsing"

    function rmc(time: string, date: string): string {
        return `$GPRMC,${time},A,4916.45,S,12311.12,W,000.5,054.7,${date},020.3,E*68`;
    }

    function ggaAt(time: string): string {
        return gga.replace("123519", time);
    }

    function test_points_data(): var {
        return [
            {tag: "field misread", text: gga, points: [
                {format: "$GPGGA", latitude: 48.1173, longitude: 11.5166667, altitude: 545.4,
                 index: 0, time: 0, interval: 0, timeString: "00:00:00.0"}]},
            {tag: "fraction or south lost",
             text: rmc("123519.50", "191194") + "\r\n" + rmc("123521.00", "191194"), points: [
                {format: "$GPRMC", latitude: -49.2741667, longitude: -123.1853333, altitude: 0},
                {index: 1, time: 1500, interval: 1500, timeString: "00:00:01.5"}]},
            {tag: "midnight missed", text: ggaAt("235959") + "\n" + ggaAt("000001") + "\n"
                + ggaAt("000000"), maximumPoints: 3,
             points: [{}, {interval: 2000}, {interval: 86399000, time: 86401000,
                                             timeString: "00:00:01.0"}]},
            {tag: "date read by the calendar", text: rmc("000000", "190194") + "\n"
                + rmc("000000", "200194"), points: [{}, {interval: 366 * 86400000}]},
            {tag: "year in the future", text: rmc("000000", "310194") + "\n"
                + rmc("000000", "010194"), points: [{}, {interval: Date.UTC(2001, 1, 1)
                - Date.UTC(new Date().getFullYear() < 2031 ? 1931 : 2031, 1, 31)}]},
            {tag: "points of another type",
             text: [gga, rmc("123520", "191194"), "$GNGGA,", ggaAt("123520")].join("\n"),
             points: [{}, {format: "$GPGGA", interval: 1000}]},
            {tag: "shifted fields taken for values", text: "$GPRMC,123519,A,x,4807.038,N,"
                + "01131.000,E,1.5,N,01131.000,E,1,2,191194,3,4", line: 1,
             error: "Incorrect NMEA file"},
            {tag: "line without its last comma", text: "$GPWPL,4807.038,N,01131.000,E", line: 1,
             error: "Incorrect NMEA file"},
            {tag: "empty text", text: "", error: "NMEA file is empty", line: 0},
            {tag: "wrong line", text: gga + "\r\n\r\n\n$GPXXX\n" + gga.replace("N", "X"), line: 3,
             error: "Incorrect NMEA file"},
            {tag: "line of only a tag skipped", text: gga + "\n$GPGGA", line: 2,
             error: "Incorrect NMEA file"},
            {tag: "missing fix accepted", text: "$GPGGA,123519,,,,,0,00,,,M,,M,,*66", line: 1,
             error: "Incorrect NMEA file"},
            {tag: "limit ignored", text: gga + "\n" + gga + "\n" + gga, maximumPoints: 2, line: 0,
             error: "NMEA file has more than 2 points"},
            {tag: "empty lines counted", text: "\r\n\n", error: "NMEA file has only empty lines"},
            {tag: "position without time accepted", text: "$GPGLL,4916.45,N,12311.12,W,A",
             error: 'NMEA file has a position at "A", which is not a time'},
            {tag: "unknown tag accepted", text: "$GNGGA\n\n$GPGGAX,1\n x\n", error: unknown, line: 3},
        ];
    }

    function test_points(row: var) {
        let points;
        try {
            points = Nmea.loadNmeaLog(row.text, row.maximumPoints);
        } catch (error) {
            compare([error.message, error.incorrectLine], [row.error, row.line]);
            return;
        }
        compare(points.length, row.points.length);
        row.points.forEach((point, index) => {
            for (const field in point)
                compare(points[index][field], point[field], `${field} of point ${index}`);
        });
    }

    // Points with the interval 0 do not count as points without a time.
    function test_pointsWithoutTime() {
        const waypoint = "$GPWPL,4807.038,N,01131.000,E,W*5C\n";
        for (const [text, answer] of [[waypoint, false], [waypoint + waypoint, true],
                                      [gga + "\n" + ggaAt("123520") + "\n" + ggaAt("123520"), false]])
            compare(Nmea.trackHasPointsWithoutDateTime(Nmea.loadNmeaLog(text)), answer);
    }

    function read(text: string): var {
        try {
            return Nmea.loadNmeaLog(text).map(
                point => [point.latitude, point.longitude, point.altitude, point.time, point.interval]);
        } catch (error) {
            return error.incorrectLine;
        }
    }

    function test_receiversLogs() {
        for (let seed = 0; seed < 40; ++seed) {
            const text = Logs.log(seed, 30);
            compare(read(text), Reference.read(text), text);
        }
    }

    // Accepted logs give the points of the reference, refused logs its line number.
    function test_damagedLogs() {
        for (let seed = 0; seed < 1000; ++seed) {
            const text = Logs.damaged(Logs.log(seed, 3), seed);
            const result = read(text);
            const expected = Reference.read(text);
            if (result !== undefined) // the error has no line, or no sentence is known
                compare(result, expected, text);
        }
    }

    // A pattern with wildcards would try all combinations of these commas, which takes years.
    function test_manyCommas() {
        compare(read("$GPGGA,123519,4807.038,N,01131.000,E" + ",".repeat(100000)), 1);
    }
}
