#pragma once

#include "track.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>

namespace EmulationManagement::Internal {

/*!
 * What the script works on that reads the points of a track from a text (NmeaLogReader.qml): gives
 * it the text, and takes the points or the error. It belongs to the thread that runs the script.
 */
class TrackReading : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text CONSTANT)
    Q_PROPERTY(int maximumPoints READ maximumPoints CONSTANT)

public:
    /// \a setProgress gets the part of the text that has been read, from 0 to 1, and returns
    /// whether the reading goes on.
    TrackReading(QString text, int maximumPoints, std::function<bool(double)> setProgress);

    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] int maximumPoints() const { return m_maximumPoints; }

    /// Takes points as packedPoints() of track-points.js packs them. The script has read the text
    /// up to the place \a end. Returns whether the script shall go on; otherwise the reading was
    /// cancelled.
    Q_INVOKABLE bool append(const QByteArray &packedPoints, double end);
    /// Notes the error that ends the reading. \a line counts from 1; 0 means no line.
    Q_INVOKABLE void fail(const QString &message, int line);

    [[nodiscard]] bool hasFailed() const { return m_failed; }
    [[nodiscard]] const QString &errorMessage() const { return m_errorMessage; }
    [[nodiscard]] int errorLine() const { return m_errorLine; }
    [[nodiscard]] QList<TrackPoint> takePoints();

private:
    QString m_text;
    int m_maximumPoints;
    std::function<bool(double)> m_setProgress;
    QList<TrackPoint> m_points;
    QString m_errorMessage;
    int m_errorLine = 0;
    bool m_failed = false;
};

} // namespace EmulationManagement::Internal
