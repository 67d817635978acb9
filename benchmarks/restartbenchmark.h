#pragma once

#include <QObject>

/*!
 * Whether the IDE's memory grows while the emulator dies and is started again, a hundred times with
 * the window open. The baseline is its memory after the first restarts, when all caches are filled.
 */
class RestartBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testMemory();
    void cleanupTestCase();
};
