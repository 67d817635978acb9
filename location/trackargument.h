#pragma once

#include <link/argumentencoding.h>

#include <QString>

namespace EmulationManagement::Internal {

/// Writes the argument of "loadTrack": an array of latitude, longitude, altitude and interval for
/// each point, in degrees, metres and milliseconds.
class TrackArgument
{
public:
    static constexpr int coordinateDecimals = 7;
    static constexpr int altitudeDecimals = 2;

    /// \a begin is the text before the argument, \a pointCount an estimate.
    TrackArgument(const QString &begin, qsizetype pointCount);

    void append(double latitude, double longitude, double altitude, double interval);

    /// Returns \a begin and the argument.
    [[nodiscard]] QString toString() const { return m_points.toString(); }

private:
    DoubleArraysArgument m_points;
};

} // namespace EmulationManagement::Internal
