#pragma once

#include "track.h"

#include <QFutureWatcher>
#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <QUrl>
#include <QtQmlIntegration>

#include <chrono>

namespace EmulationManagement::Internal {

/// What reading a file gave: a track, or an error for the user.
struct TrackReadingResult
{
    Track track = {};
    bool failed = false;
    QString errorMessage = {}; ///< empty if the file could not be read
    int errorLine = 0;    ///< counts from 1; 0 means no line
};

/*!
 * Reads the track of an NMEA file in a thread of its own, so that windows keep responding.
 *
 * It reads one file at a time. Nothing of a reading that was cancelled arrives later.
 */
class TrackReader : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("gpsEmulationManager has the only instance")
    Q_PROPERTY(bool reading READ isReading NOTIFY readingChanged)
    Q_PROPERTY(bool takingLong READ isTakingLong NOTIFY takingLongChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)

public:
    /// A reading that takes longer shows its progress.
    static constexpr std::chrono::milliseconds usualDuration{300};

    /// \a uploadBegin is the request that uploads a track up to its argument.
    explicit TrackReader(QString uploadBegin, QObject *parent = nullptr);
    /// Cancels.
    ~TrackReader() override;

    [[nodiscard]] bool isReading() const { return m_reading; }
    /// Whether a file has been read for longer than usualDuration.
    [[nodiscard]] bool isTakingLong() const { return m_takingLong; }
    /// The part of the work that has been done, from 0 to 1.
    [[nodiscard]] double progress() const;
    /// The reading, for a progress indicator that can cancel it.
    [[nodiscard]] QFuture<void> future() const { return QFuture<void>(m_watcher.future()); }

    /// Reads a local file, in place of one that is being read. A file with more than
    /// \a maximumPoints is refused.
    Q_INVOKABLE void read(const QUrl &url, int maximumPoints);
    Q_INVOKABLE void cancel();
    /// Returns the track that was loaded last, and forgets it.
    [[nodiscard]] Track takeTrack();

Q_SIGNALS:
    void readingChanged();
    void takingLongChanged();
    void progressChanged();
    /// takeTrack() has the track. It is no argument of this signal, because QML would keep a copy
    /// until it collects garbage.
    void loaded();
    /// See TrackReadingResult.
    void failed(const QString &message, int line);
    /// The reading was cancelled, but not because another one began.
    void canceled();

private:
    void finish();
    void setTakingLong(bool takingLong);
    bool abandon();

    QString m_uploadBegin;
    bool m_reading = false;
    bool m_takingLong = false;
    Track m_track;
    QTimer m_usualDurationTimer;
    QFutureWatcher<TrackReadingResult> m_watcher;
    QThreadPool m_thread;
};

} // namespace EmulationManagement::Internal
