#include "trackoutline.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace EmulationManagement::Internal {

static constexpr double resolution = 1.0 / 1024; // nearer points are not told apart
static constexpr qsizetype longestLine = 5000;   // points, which are drawn in a few milliseconds

TrackOutline::TrackOutline(const QList<TrackPoint> &points)
{
    static constexpr double infinity = std::numeric_limits<double>::infinity();
    static constexpr double smallestUnit = 1e-7; // for a track that stays at one place
    static constexpr double radians = std::numbers::pi / 180;
    if (points.isEmpty())
        return;
    m_firstLongitude = points.constFirst().longitude;
    m_west = infinity;
    m_north = -infinity;
    double east = -infinity;
    double south = infinity;
    for (const TrackPoint &point : points) {
        const double longitude = longitudeFromFirst(point);
        m_west = std::min(m_west, longitude);
        east = std::max(east, longitude);
        south = std::min(south, point.latitude);
        m_north = std::max(m_north, point.latitude);
    }
    m_shrink = std::cos((south + m_north) / 2 * radians);
    const double width = (east - m_west) * m_shrink;
    const double height = m_north - south;
    m_unit = std::max({width, height, smallestUnit});
    m_size = QSizeF(width, height) / m_unit;

    for (const TrackPoint &point : points) {
        const QPointF next = place(point);
        if (m_line.isEmpty() || (next - m_line.constLast()).manhattanLength() >= resolution)
            m_line.append(next);
    }
    const qsizetype step = m_line.size() / longestLine + 1;
    qsizetype kept = 0;
    for (qsizetype i = 0; i < m_line.size(); i += step)
        m_line[kept++] = m_line.at(i);
    m_line.resize(kept);
    m_line.append(place(points.constLast()));
    m_line.squeeze();
}

QPointF TrackOutline::place(const TrackPoint &point) const
{
    return QPointF((longitudeFromFirst(point) - m_west) * m_shrink, m_north - point.latitude)
           / m_unit;
}

double TrackOutline::longitudeFromFirst(const TrackPoint &point) const
{
    return std::remainder(point.longitude - m_firstLongitude, 360);
}

} // namespace EmulationManagement::Internal
