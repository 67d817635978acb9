#include "track.h"

#include "trackargument.h"

#include <cmath>

namespace EmulationManagement::Internal {

// Returns what the emulator gets for a value of the table. It is required that this is the table's
// text, read as a number of the C locale. A text with group separators is not a number, so values
// from 1000 on reach the emulator as 0.
static double readAsNumber(double value)
{
    return std::abs(value) < 1000 ? value : 0;
}

Track::Track(QList<TrackPoint> trackPoints, const QString &uploadBegin)
    : points(std::move(trackPoints))
    , outline(points)
{
    TrackArgument argument(uploadBegin, points.size());
    for (const TrackPoint &point : std::as_const(points)) {
        argument.append(readAsNumber(point.latitude), readAsNumber(point.longitude),
                        readAsNumber(point.altitude), point.interval);
    }
    uploadRequest = argument.toString();
    uploadRequest.squeeze();
}

} // namespace EmulationManagement::Internal
