#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QSize>
#include <QTimer>

class StreamPipeline;

/// Measures once a second how many frames a pipeline sends, and their size.
class StreamMeter : public QObject
{
    Q_OBJECT

public:
    explicit StreamMeter(QObject *parent = nullptr);

    /// Begins to measure \a pipeline, which must exist until stop().
    void start(StreamPipeline *pipeline);
    void stop();

    /// Negative while it is unknown: without a stream, and before the stream's first frame. 0 after
    /// two seconds without a frame.
    [[nodiscard]] int framesPerSecond() const { return m_framesPerSecond; }
    /// In pixels. Invalid unless framesPerSecond() is positive.
    [[nodiscard]] QSize size() const { return m_size; }

Q_SIGNALS:
    void measured();

private:
    void measure();
    void reset();

    StreamPipeline *m_pipeline = nullptr;
    QTimer m_timer;
    QElapsedTimer m_sinceMeasurement;
    int m_measurementsWithoutFrame = 0;
    int m_framesPerSecond = -1;
    QSize m_size;
};
