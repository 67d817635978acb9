#pragma once

#include <QObject>

/*!
 * Whether dragging a slider of the values page, 60 mouse events a second, leaves the GUI thread's
 * event loop free. The baseline is an empty window that gets the same events.
 */
class SliderBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testLongestGap();
    void cleanupTestCase();
};
