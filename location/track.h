#pragma once

#include "trackoutline.h"
#include "trackpoint.h"

#include <QList>
#include <QString>

namespace EmulationManagement::Internal {

/// The points of a track, the request that uploads them, and their drawing. Copies share all.
struct Track
{
    Track() = default;
    /// \a uploadBegin is the request that uploads the track up to its argument.
    Track(QList<TrackPoint> trackPoints, const QString &uploadBegin);

    QList<TrackPoint> points;
    QString uploadRequest; ///< as the link sends it
    TrackOutline outline;
};

} // namespace EmulationManagement::Internal
