#pragma once

#include <gpspagedriver.h>
#include <journalreader.h>

#include <QObject>

#include <memory>

/// Tests what the emulator receives when positions and tracks are set and played on the GPS page.
class LocationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void testCoordinates_data();
    void testCoordinates();
    void testTrackIsUploaded_data();
    void testTrackIsUploaded();
    void testPlayback();
    void testEndAndLoop();
    void testSteering();
    void testTable();
    void testReconnection();
    void testErrorReply();
    void testLinkLost();
    void testCancelledReading_data();
    void testCancelledReading();
    void testBadFile_data();
    void testBadFile();
    void cleanupTestCase();

private:
    /// Returns the calls since the last time. Equal calls in a row count as one.
    QStringList takeCalls();
    void waitForCall(const QString &call);
    void open(const QString &sample, int points = 5);
    /// The enabled ones of the buttons that play, pause and stop.
    [[nodiscard]] QString enabledButtons() const;
    [[nodiscard]] int rowCount() const;

    std::unique_ptr<JournalReader> m_journal;
    std::unique_ptr<GpsPageDriver> m_page;
    qsizetype m_position = 0;
};
