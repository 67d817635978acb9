#pragma once

#include <QObject>

/*!
 * Measures how long the GUI thread's event loop is blocked while a slider of the values page is
 * dragged with 60 mouse events a second. The baseline is an empty window with the same events.
 */
class SliderBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testLongestGap();
    void cleanupTestCase();
};
