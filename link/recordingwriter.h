#pragma once

#include "recording.h"

#include <QFile>
#include <QObject>
#include <QThreadPool>

#include <chrono>

namespace EmulationManagement::Internal {

class CallLog;
class RemoteDBusInvokerService;
struct LoggedCall;

/*!
 * Writes a recording of what is sent, as it is sent.
 *
 * Lines are made and written in a thread of their own, because one with a track takes seconds. Each
 * is written at once, so that a crash loses at most a part of the last line.
 */
class RecordingWriter : public QObject
{
    Q_OBJECT

public:
    using Clock = std::chrono::steady_clock;

    explicit RecordingWriter(QObject *parent = nullptr);
    /// Writes all that was added.
    ~RecordingWriter() override;

    /// Makes a file, in place of one that exists. Returns an error, or an empty text.
    [[nodiscard]] QString open(const QString &path);
    /// Records all requests that the link sends.
    void watch(RemoteDBusInvokerService *link);
    /// Records a call. From \a begin on, \a text is a text of MethodArguments.
    void add(Clock::time_point time, const ServiceMethod &method, const QString &text,
             qsizetype begin = 0);
    /// Waits until all is written. Returns an error, or an empty text.
    [[nodiscard]] QString close();

    [[nodiscard]] qint64 count() const { return m_count; }

    struct Saved
    {
        qint64 calls = 0;
        qint64 leftOut = 0; ///< not sent, not described or shortened by the log
    };
    /// Writes logged calls to a file, in place of one that exists. Sets \a error if that fails.
    static Saved save(const QString &path, const std::vector<LoggedCall> &calls, const CallLog &log,
                      QString *error);

    /// Writes a whole recording. A failure shows when \a device is flushed.
    static void write(const Recording &recording, QIODevice &device);
    /// Returns the lines of a recording.
    [[nodiscard]] static QByteArray headerLine(const QDateTime &start);
    [[nodiscard]] static QByteArray callLine(std::chrono::microseconds after,
                                             const ServiceMethod &method, QStringView arguments);

Q_SIGNALS:
    /// The file takes no more. close() tells why. Emitted in the thread that writes.
    void failed();

private:
    void write(const QByteArray &line);

    QFile m_file;
    QString m_error; // of the thread, until it has finished
    Clock::time_point m_start;
    std::chrono::microseconds m_lastTime{};
    qint64 m_count = 0;
    QThreadPool m_thread;
};

} // namespace EmulationManagement::Internal
