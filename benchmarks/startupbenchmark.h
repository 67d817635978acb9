#pragma once

#include <QObject>

/*!
 * Measures the plugin's share of the start of an IDE with all its plugins, by the IDE's profile.
 * The baseline is the same IDE without the plugin; the two are started in turns.
 */
class StartUpBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testStart();
};
