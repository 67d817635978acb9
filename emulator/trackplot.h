#pragma once

#include <QPixmap>
#include <QWidget>

namespace NimbraEmulator {

class LocationService;

/// A small map of the location service's track, north up, with the position on it. A position
/// outside of the map is shown at its edge.
class TrackPlot : public QWidget
{
    Q_OBJECT

public:
    /// The service outlives the plot.
    explicit TrackPlot(const LocationService &location, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitTrack();
    void drawTrack();
    /// The rectangle of the widget that the track is drawn in.
    [[nodiscard]] QRectF area() const;
    [[nodiscard]] QPointF place(double latitude, double longitude) const;

    const LocationService &m_location;
    QPointF m_centre;     // longitude and latitude, in degrees
    QSizeF m_extent;      // of the track in degrees of latitude
    double m_shrink = 1;  // length of a degree of longitude here, in degrees of latitude
    QPixmap m_track;      // kept, because drawing many thousand points takes long
};

} // namespace NimbraEmulator
