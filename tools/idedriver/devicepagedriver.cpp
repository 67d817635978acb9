#include "devicepagedriver.h"

#include "plugindriver.h"

#include <QImage>
#include <QQmlListReference>
#include <QQuickItem>
#include <QQuickView>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

DevicePageDriver::DevicePageDriver(const WindowDriver &driver)
    : m_driver(driver)
{}

void DevicePageDriver::show() const
{
    m_driver.clickButton(u"Orientation Management"_s);
}

QQuickItem *DevicePageDriver::area() const
{
    return m_driver.items(u"SmartphoneModelArea"_s).constFirst();
}

QPoint DevicePageDriver::at(double x, double y) const
{
    const QQuickItem *item = area();
    return item->mapToScene(QPointF(x * item->width(), y * item->height())).toPoint();
}

void DevicePageDriver::drag(const QList<QPointF> &way) const
{
    QQuickWindow *window = m_driver.window();
    QTest::mousePress(window, Qt::LeftButton, {}, at(way.first().x(), way.first().y()));
    for (const QPointF &point : way)
        QTest::mouseMove(window, at(point.x(), point.y()));
    QTest::mouseRelease(window, Qt::LeftButton, {}, at(way.last().x(), way.last().y()));
}

QColor DevicePageDriver::colorAt(double x, double y) const
{
    const QImage picture = m_driver.window()->grabWindow();
    return picture.pixelColor(at(x, y) * picture.devicePixelRatio());
}

void DevicePageDriver::turn(const QList<double> &rotation) const
{
    static constexpr qsizetype index = 2;
    const auto *view = qobject_cast<QQuickView *>(m_driver.window());
    QObject *page = QQmlListReference(view->rootObject(), "pagesIds").at(index);
    QMetaObject::invokeMethod(page, "rotate", rotation);
}

void DevicePageDriver::read(const QString &mesh, const QString &texture) const
{
    QMetaObject::invokeMethod(PluginDriver::deviceModelReader(), "read",
                              QUrl::fromLocalFile(mesh).toString(),
                              QUrl::fromLocalFile(texture).toString());
}
