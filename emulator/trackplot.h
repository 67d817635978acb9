#pragma once

#include <QPixmap>
#include <QWidget>

namespace NimbraEmulator {

class LocationService;

/// A small map of the location service's track, north up, with the position on it. A position
/// beyond the map is shown at its edge.
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
    /// The widget's rectangle that the track may take.
    [[nodiscard]] QRectF area() const;
    [[nodiscard]] QPointF place(double latitude, double longitude) const;

    const LocationService &m_location;
    QPointF m_centre;     // longitude and latitude, in degrees
    QSizeF m_extent;      // of the track in degrees of latitude
    double m_shrink = 1;  // degrees of latitude that are as long as one of longitude here
    QPixmap m_track;      // drawn once, for it may have many thousand points
};

} // namespace NimbraEmulator
