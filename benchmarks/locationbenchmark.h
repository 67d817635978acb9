#pragma once

#include <QObject>
#include <QTemporaryDir>

/*!
 * Measures reading, showing, uploading and playing tracks.
 *
 * One kind of log is like a receiver's: every eighth sentence is a point. The limits hold for it.
 * The other kind has points only, the worst case.
 */
class LocationBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void testTable();
    void testParsing();
    void testUpload();
    void testPlayback();

private:
    [[nodiscard]] QString writeLog(const QString &name, int sentences, bool pointsOnly);
    /// Milliseconds that the plugin's script needs to parse the log; the result is dropped.
    [[nodiscard]] double parse(const QString &log);

    QTemporaryDir m_folder;
    QString m_receiversLog;
    QString m_longLog;
    QString m_pointsLog;
};
