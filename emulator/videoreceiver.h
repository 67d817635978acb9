#pragma once

#include <QElapsedTimer>
#include <QHostAddress>
#include <QImage>
#include <QObject>
#include <QTimer>

#include <memory>

using GstElement = struct _GstElement;

namespace NimbraEmulator {

class JournalWriter;

/*!
 * The source of the device's camera: receives pictures as RTP/JPEG (RFC 2435) over UDP.
 *
 * Writes to the journal: "video-started" for the first picture and each new size, "video" for each
 * second with pictures, "video-ended" for the first second without one.
 */
class VideoReceiver : public QObject
{
    Q_OBJECT

public:
    static constexpr quint16 port = 34343;

    explicit VideoReceiver(JournalWriter &journal);
    ~VideoReceiver() override;

    /// On failure puts one sentence into \a error.
    [[nodiscard]] bool listen(const QHostAddress &address, QString *error);

    /// The last picture of the running stream; null when no stream runs.
    [[nodiscard]] const QImage &picture() const { return m_picture; }
    /// The number of pictures in the last second.
    [[nodiscard]] double rate() const { return m_rate; }
    /// The number of pictures since the start, including those that could not be decoded.
    [[nodiscard]] qint64 frameCount() const { return m_frameCount; }

Q_SIGNALS:
    void changed();

private:
    struct StopPipeline
    {
        void operator()(GstElement *pipeline) const noexcept;
    };

    static int onSample(GstElement *sink, void *receiver);
    void addFrame(const QImage &picture);
    void endSecond();
    void writeSecond();

    JournalWriter &m_journal;
    std::unique_ptr<GstElement, StopPipeline> m_pipeline;
    QImage m_picture;
    QTimer m_secondTimer;
    QElapsedTimer m_sinceReport;
    qint64 m_frameCount = 0;
    int m_unreportedFrames = 0;
    int m_brokenFrames = 0;
    double m_rate = 0.0;
};

} // namespace NimbraEmulator
