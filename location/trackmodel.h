#pragma once

#include "track.h"

#include <QAbstractTableModel>
#include <QPointF>
#include <QSizeF>
#include <QVariantMap>
#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

class TrackReader;

/*!
 * The points of a track, one a row.
 *
 * A track may have a million points. The model makes the texts of a point when they are asked for,
 * and a view asks only for the rows that it shows.
 */
class TrackModel : public QAbstractTableModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int rowCount READ rowCount NOTIFY rowsChanged)
    /// See TrackOutline.
    Q_PROPERTY(QList<QPointF> outline READ outline NOTIFY rowsChanged)
    Q_PROPERTY(QSizeF outlineSize READ outlineSize NOTIFY rowsChanged)

public:
    /// Latitude, longitude and altitude are texts, see at().
    enum Column {
        Number, ///< the index of the point
        Time,   ///< milliseconds since the first point, as a number
        Latitude,
        Longitude,
        Altitude,
        ColumnCount
    };
    Q_ENUM(Column)

    using QAbstractTableModel::QAbstractTableModel;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

    /*!
     * Returns the "latitude", "longitude" and "altitude" of a point as English texts with group
     * separators, for example "1,234.50", and its "interval" in milliseconds as a number.
     *
     * Also returns the points that clear() has removed from the table. The map is empty if there is
     * no such point.
     */
    [[nodiscard]] Q_INVOKABLE QVariantMap at(int index) const;
    [[nodiscard]] const Track &track() const { return m_track; }
    [[nodiscard]] QList<QPointF> outline() const { return m_track.outline.line(); }
    [[nodiscard]] QSizeF outlineSize() const { return m_track.outline.size(); }
    /// Returns the place of a point on the outline. It is outside if there is no such point.
    [[nodiscard]] Q_INVOKABLE QPointF placeOf(int index) const;

    void setTrack(const Track &track);
    /// Shows the track that the reader has loaded.
    Q_INVOKABLE void takeTrack(EmulationManagement::Internal::TrackReader *reader);
    /// Removes all rows.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void rowsChanged();

private:
    Track m_track;
    int m_rowCount = 0;
};

} // namespace EmulationManagement::Internal
