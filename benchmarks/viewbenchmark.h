#pragma once

#include <QObject>

/*!
 * Measures what the device model page adds to the loading of the view at the IDE's start. The
 * baseline is the same view with an empty page instead.
 */
class ViewBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testLoading();
};
