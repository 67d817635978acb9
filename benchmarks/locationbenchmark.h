#pragma once

#include <QObject>
#include <QTemporaryDir>

/*!
 * Tracks: reading, showing, uploading and playing them.
 *
 * The logs are like a receiver's, one sentence in eight being a point, or of points only. The
 * limits hold for the first; the second is the worst that can be.
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
    /// The milliseconds that the plugin's script takes for the log; its points are forgotten.
    [[nodiscard]] double parse(const QString &log);

    QTemporaryDir m_folder;
    QString m_receiversLog;
    QString m_longLog;
    QString m_pointsLog;
};
