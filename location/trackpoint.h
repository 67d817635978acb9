#pragma once

namespace EmulationManagement::Internal {

/// A point of a track, as the script reads it from a file.
struct TrackPoint
{
    double latitude = 0;  ///< degrees, north positive, rounded to 7 decimals
    double longitude = 0; ///< degrees, east positive, rounded to 7 decimals
    double altitude = 0;  ///< metres, rounded to 2 decimals
    double time = 0;      ///< milliseconds since the first point, 0 without time stamps
    double interval = 0;  ///< milliseconds since the previous point
};

} // namespace EmulationManagement::Internal
