import QtQml

import "../../js/location/nmea-parsing.js" as Nmea
import "../../js/location/track-points.js" as TrackPoints

// Reads a log by the script, as soon as it is created. TrackReader creates it in an engine and a
// thread of its own.
QtObject {
    // A TrackReading. Collecting garbage takes milliseconds in an engine that has imported the
    // module of its type, so this file does without the type.
    required property var reading

    Component.onCompleted: {
        try {
            Nmea.loadNmeaLog(reading.text, reading.maximumPoints, (points, begin, end) => {
                if (!reading.append(TrackPoints.packedPoints(points, begin), end))
                    throw new Error("The reading was cancelled");
                // The engine collects no garbage while a function runs. The garbage of a long log
                // would take forty times as much memory as the log.
                gc();
            });
        } catch (error) {
            reading.fail(error.message, error.incorrectLine ?? 0);
        }
    }
}
