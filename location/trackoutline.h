#pragma once

#include "trackpoint.h"

#include <QList>
#include <QPointF>
#include <QSizeF>

namespace EmulationManagement::Internal {

/*!
 * A drawing of a track on a map: north is up, and all directions have the same scale, which is that
 * of the middle latitude (equirectangular projection).
 *
 * Its unit is the longer side of the track, so each coordinate is between 0 and 1. Longitudes are
 * taken near that of the first point, so that a track can cross the 180th meridian.
 */
class TrackOutline
{
public:
    TrackOutline() = default;
    explicit TrackOutline(const QList<TrackPoint> &points);

    /// The track as a line of at most some thousand points, which look the same as all points.
    [[nodiscard]] const QList<QPointF> &line() const { return m_line; }
    [[nodiscard]] QSizeF size() const { return m_size; }
    [[nodiscard]] QPointF place(const TrackPoint &point) const;

private:
    [[nodiscard]] double longitudeFromFirst(const TrackPoint &point) const;

    double m_firstLongitude = 0; // degrees
    double m_west = 0;           // degrees from the first longitude
    double m_north = 0;          // degrees
    double m_shrink = 1;         // of a degree of longitude against one of latitude
    double m_unit = 1;           // degrees of latitude
    QSizeF m_size;
    QList<QPointF> m_line;
};

} // namespace EmulationManagement::Internal
