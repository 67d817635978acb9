#pragma once

#include <gpspagedriver.h>
#include <journalreader.h>

#include <QObject>

#include <memory>

/// What the emulator hears of positions and tracks that are set and played on the GPS page.
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
    void testBadFile_data();
    void testBadFile();
    void cleanupTestCase();

private:
    /// The calls so far, each once where it comes several times in a row, and forgets them.
    QStringList takeCalls();
    void waitForCall(const QString &call);
    void open(const QString &sample, int points = 5);
    /// Of those that play, pause and stop; none is while the table is empty.
    [[nodiscard]] QString enabledButtons() const;
    [[nodiscard]] int rowCount() const;

    std::unique_ptr<JournalReader> m_journal;
    std::unique_ptr<GpsPageDriver> m_page;
    qsizetype m_position = 0;
};
