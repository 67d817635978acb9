#include "trackplot.h"

#include "locationservice.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace NimbraEmulator {

static constexpr qreal margin = 8;
static constexpr qreal positionRadius = 4;
static constexpr double degreesOfHalfCircle = 180;

TrackPlot::TrackPlot(const LocationService &location, QWidget *parent)
    : QWidget(parent)
    , m_location(location)
{
    setMinimumHeight(sizeHint().height());
    connect(&m_location, &LocationService::trackChanged, this, &TrackPlot::fitTrack);
    connect(&m_location, &LocationService::changed, this, qOverload<>(&QWidget::update));
}

QSize TrackPlot::sizeHint() const
{
    return {200, 120};
}

void TrackPlot::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    if (m_location.track().isEmpty())
        return;
    if (m_track.isNull())
        drawTrack();
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_track);

    const auto &[latitude, longitude, altitude] = m_location.position();
    const QPointF position = place(latitude, longitude);
    const QRectF inside = area();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(palette().highlight());
    painter.drawEllipse(QPointF(std::clamp(position.x(), inside.left(), inside.right()),
                                std::clamp(position.y(), inside.top(), inside.bottom())),
                        positionRadius, positionRadius);
}

void TrackPlot::resizeEvent(QResizeEvent *event)
{
    Q_UNUSED(event)
    m_track = {};
}

void TrackPlot::fitTrack()
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    double south = infinity;
    double north = -infinity;
    double west = infinity;
    double east = -infinity;
    for (const QList<double> &point : m_location.track()) {
        south = std::min(south, point.at(0));
        north = std::max(north, point.at(0));
        west = std::min(west, point.at(1));
        east = std::max(east, point.at(1));
    }
    m_centre = {(west + east) / 2, (south + north) / 2};
    m_shrink = std::abs(std::cos(m_centre.y() * std::numbers::pi / degreesOfHalfCircle));
    m_extent = {(east - west) * m_shrink, north - south};
    m_track = {};
    update();
}

void TrackPlot::drawTrack()
{
    QPolygonF line;
    line.reserve(m_location.trackSize());
    for (const QList<double> &point : m_location.track()) {
        const QPointF next = place(point.at(0), point.at(1));
        // skips points on the same pixel, which would only cost time
        if (line.isEmpty() || (next - line.last()).manhattanLength() >= 1)
            line.append(next);
    }
    m_track = QPixmap(size() * devicePixelRatio());
    m_track.setDevicePixelRatio(devicePixelRatio());
    m_track.fill(palette().color(QPalette::Base));
    QPainter painter(&m_track);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawPolyline(line);
}

QRectF TrackPlot::area() const
{
    return QRectF(rect()).adjusted(margin, margin, -margin, -margin);
}

QPointF TrackPlot::place(double latitude, double longitude) const
{
    // avoids a division by zero for a track of one place
    constexpr double smallestExtent = 1e-7;
    const double scale = std::min(area().width() / std::max(m_extent.width(), smallestExtent),
                                  area().height() / std::max(m_extent.height(), smallestExtent));
    return area().center()
           + QPointF((longitude - m_centre.x()) * m_shrink, m_centre.y() - latitude) * scale;
}

} // namespace NimbraEmulator
