#pragma once

#include <QObject>

/*!
 * What the plugin adds to the start of an IDE with all of its own plugins, as the IDE's profile
 * tells. The baseline is the same IDE without the plugin, in turns with the other.
 */
class StartUpBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testStart();
};
