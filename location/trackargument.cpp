#include "trackargument.h"

namespace EmulationManagement::Internal {

static constexpr qsizetype usualPointSize = 40; // characters

TrackArgument::TrackArgument(const QString &begin, qsizetype pointCount)
    : m_points(begin, pointCount * usualPointSize)
{}

void TrackArgument::append(double latitude, double longitude, double altitude, double interval)
{
    m_points.append({QString::number(latitude, 'f', coordinateDecimals),
                     QString::number(longitude, 'f', coordinateDecimals),
                     QString::number(altitude, 'f', altitudeDecimals), QString::number(interval)});
}

} // namespace EmulationManagement::Internal
