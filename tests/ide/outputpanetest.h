#pragma once

#include <QObject>

/// The IDE's output pane with the calls, and recordings that it writes and plays.
class OutputPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void testCallsAndTheirFailures();
    void testRecordingIsPlayedAndTheWindowRests();
    void testTrackRestsAndGoesOn();
    void cleanupTestCase();
};
