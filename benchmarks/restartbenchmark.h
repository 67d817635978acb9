#pragma once

#include <QObject>

/*!
 * Measures whether the IDE's memory grows while the emulator is killed and started a hundred times
 * with the window open. The baseline is the memory after the first restarts, with full caches.
 */
class RestartBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testMemory();
    void cleanupTestCase();
};
