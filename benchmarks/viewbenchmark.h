#pragma once

#include <QObject>

/*!
 * What the device model page adds to loading the view, which the IDE does when it starts. The
 * baseline is the same view with an empty page in its place.
 */
class ViewBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testLoading();
};
