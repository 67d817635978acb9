#pragma once

#include <devicepagedriver.h>

#include <QObject>

#include <memory>

/*!
 * Measures what the drawing of the device costs: its first showing, frames while nothing changes,
 * memory after many changes of the device model, and the time for which the largest mesh blocks the
 * event loop. The baselines are what they may cost.
 */
class DrawingBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testFirstShowing();
    void testFramesAtRest();
    void testMemory();
    void testLargeMesh();

private:
    std::unique_ptr<DevicePageDriver> m_page;
};
