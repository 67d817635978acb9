#pragma once

#include "gstreferences.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSize>
#include <QTimer>

#include <atomic>

/*!
 * Measures what leaves a pipeline that streams: how many frames a second, and their size.
 *
 * Measures once a second while it runs.
 */
class StreamMeter : public QObject
{
    Q_OBJECT

public:
    explicit StreamMeter(QObject *parent = nullptr);

    /// Counts each frame that a payloader hands to \a udpSink. The meter must outlive the sink.
    void countFramesOf(GstElement *udpSink);

    /// Begins to measure a stream whose frames \a jpegEncoder makes.
    void start(ObjectReference<GstElement> jpegEncoder);
    void stop();

    /// Negative while it is unknown: without a stream, or before its first frame. 0 after two
    /// seconds without a frame.
    [[nodiscard]] int framesPerSecond() const;
    /// In pixels. Not valid while it is unknown.
    [[nodiscard]] QSize size() const;

Q_SIGNALS:
    void measured();

private:
    void measure();
    void reset();

    ObjectReference<GstElement> m_jpegEncoder;
    QTimer m_timer;
    QElapsedTimer m_sinceMeasurement;
    std::atomic<int> m_frameCount = 0; // written by threads of the pipelines
    int m_measurementsWithoutFrame = 0;
    int m_framesPerSecond = -1;
    QSize m_size;
};
