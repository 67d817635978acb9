#pragma once

#include <QObject>
#include <QTemporaryDir>

/*!
 * Measures reading, showing, uploading and playing tracks.
 *
 * There are two kinds of logs. In a receiver's log, each eighth sentence is a point; the limits are
 * for this kind. A log of points only is the worst case.
 */
class LocationBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void testTable();
    void testParsing();
    void testUpload();
    void testPlayback();
    void testLongTracks();

private:
    [[nodiscard]] QString writeLog(const QString &name, int sentences, bool pointsOnly);
    /// Returns the milliseconds that the plugin's script needs to parse the log.
    [[nodiscard]] double parse(const QString &log);
    /// Measures a log of points only in the connected window. Returns the milliseconds from the
    /// choice of the file to the last byte of the upload.
    [[nodiscard]] double openLongTrack(const QString &log, int points);

    QTemporaryDir m_folder;
    QString m_receiversLog;
    QString m_longLog;
    QString m_pointsLog;
    QString m_longPointsLog;
    QString m_smallLog;
};
