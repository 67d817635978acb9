#include "positionshift.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace EmulationManagement::Internal {

// The length of a degree of longitude, relative to that at the equator.
static double degreeLength(double latitude)
{
    return std::cos(latitude * std::numbers::pi / 180);
}

void PositionShift::move(double &latitude, double &longitude)
{
    if (latitude == 0 && longitude == 0)
        return;
    latitude = movedLatitude(latitude);
    longitude = movedLongitude(longitude);
}

double PositionShift::movedLatitude(double latitude)
{
    if (!m_firstLatitude)
        m_firstLatitude = latitude;
    return std::clamp(latitude - *m_firstLatitude + m_place.latitude, -90.0, 90.0);
}

double PositionShift::movedLongitude(double longitude)
{
    static constexpr double shortest = 0.01; // a degree's length near the poles
    if (!m_firstLongitude)
        m_firstLongitude = longitude;
    const double scale = degreeLength(m_firstLatitude.value_or(0))
                         / std::max(shortest, degreeLength(m_place.latitude));
    return std::remainder((longitude - *m_firstLongitude) * scale + m_place.longitude, 360.0);
}

} // namespace EmulationManagement::Internal
