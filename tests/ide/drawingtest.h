#pragma once

#include <devicepagedriver.h>

#include <QObject>

#include <memory>

/// Tests what is drawn on the page of the device. It needs a screen with OpenGL.
class DrawingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void testSides_data();
    void testSides();
    void testBadFiles_data();
    void testBadFiles();
    void testHint();
    void cleanupTestCase();

private:
    void waitForColor(QPointF point, const QColor &color);

    std::unique_ptr<DevicePageDriver> m_page;
};
