#include "trackmodel.h"

#include "trackargument.h"
#include "trackreader.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

// The texts are English, whatever the user's language is.
static QString numberText(double value, int decimals)
{
    static const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale.toString(value, 'f', decimals);
}

static QString degreesText(double degrees)
{
    return numberText(degrees, TrackArgument::coordinateDecimals);
}

static QString metresText(double metres)
{
    return numberText(metres, TrackArgument::altitudeDecimals);
}

int TrackModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rowCount;
}

int TrackModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TrackModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole
        || !checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    const TrackPoint &point = m_track.points.at(index.row());
    switch (index.column()) {
    case Number:
        return index.row();
    case Time:
        return point.time;
    case Latitude:
        return degreesText(point.latitude);
    case Longitude:
        return degreesText(point.longitude);
    default:
        return metresText(point.altitude);
    }
}

QVariantMap TrackModel::at(int index) const
{
    if (index < 0 || index >= m_track.points.size())
        return {};
    const TrackPoint &point = m_track.points.at(index);
    return {{u"latitude"_s, degreesText(point.latitude)},
            {u"longitude"_s, degreesText(point.longitude)},
            {u"altitude"_s, metresText(point.altitude)},
            {u"interval"_s, point.interval}};
}

QPointF TrackModel::placeOf(int index) const
{
    return m_track.outline.place(m_track.points.value(index));
}

void TrackModel::setTrack(const Track &track)
{
    beginResetModel();
    m_track = track;
    m_rowCount = int(track.points.size());
    endResetModel();
    Q_EMIT rowsChanged();
}

void TrackModel::takeTrack(TrackReader *reader)
{
    setTrack(reader->takeTrack());
}

void TrackModel::clear()
{
    beginResetModel();
    m_rowCount = 0;
    endResetModel();
    Q_EMIT rowsChanged();
}

} // namespace EmulationManagement::Internal
