#pragma once

#include <QObject>
#include <QTemporaryDir>

/*!
 * Measures reading, showing, uploading and playing tracks.
 *
 * One kind of log resembles that of a receiver: every eighth sentence is a point. The limits apply
 * to this kind. The other kind is the worst case: every sentence is a point.
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
