#pragma once

#include "windowdriver.h"

#include <QColor>
#include <QPoint>
#include <QUrl>

/// Uses the page "Orientation Management", on which the device is drawn.
class DevicePageDriver
{
public:
    explicit DevicePageDriver(const WindowDriver &driver);

    /// Clicks the page's button.
    void show() const;
    [[nodiscard]] QQuickItem *area() const;
    /// A point of the window, by fractions of the area's width and height.
    [[nodiscard]] QPoint at(double x, double y) const;
    /// Drags the mouse along a way of such fractions.
    void drag(const QList<QPointF> &way) const;
    /// The colour that is drawn at such a point.
    [[nodiscard]] QColor colorAt(double x, double y) const;
    /// Turns the device to Euler angles in degrees.
    void turn(const QList<double> &rotation) const;
    /// Draws other files than those of the emulator's device model.
    void read(const QString &mesh, const QString &texture) const;

private:
    WindowDriver m_driver;
};
