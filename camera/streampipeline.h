#pragma once

#include "gstreferences.h"

#include <QByteArray>
#include <QSize>

#include <atomic>
#include <mutex>

/*!
 * Base of the pipelines that send pictures to the emulator's camera, as RTP/JPEG over UDP
 * (RFC 2435).
 *
 * Each pipeline ends with the elements that this class makes. A subclass links its source of
 * pictures to jpegEncoder(). GStreamer's errors are not reported: the pipeline then sends nothing.
 */
class StreamPipeline
{
public:
    /// The address and UDP port that pictures are sent to.
    static constexpr char host[] = "127.0.0.1";
    static constexpr int udpPort = 34343;
    /// The largest width and height, in pixels, that RTP/JPEG can carry (RFC 2435, 3.1.5).
    static constexpr int maximumSideLength = 2040;

    /// Names of the pipeline and of its last elements.
    struct Names
    {
        const char *pipeline;
        const char *jpegEncoder;
        const char *rtpPayloader;
        const char *udpSink;
    };

    /// Stops the pipeline.
    virtual ~StreamPipeline();

    /// Starts, without waiting for the first frame.
    virtual void play();
    /// Stops, and returns when nothing is sent any more. May be called while stopped.
    virtual void stop();

    /// The number of frames that were sent since the last call.
    [[nodiscard]] int takeFrameCount() { return m_frameCount.exchange(0); }
    /// Returns a JPEG picture that is as new as the last call or newer, and asks for the next one.
    /// Empty if there is none yet.
    [[nodiscard]] QByteArray takePicture();
    /// Width and height of the frames in pixels. Invalid before the first frame.
    [[nodiscard]] QSize frameSize() const;

    /// Whether RTP/JPEG can carry this size, in pixels. True for an unknown size, -1x-1.
    [[nodiscard]] static bool isStreamable(QSize size);

protected:
    explicit StreamPipeline(const Names &names);

    [[nodiscard]] GstElement *pipeline() const { return m_pipeline.get(); }
    /// Null if GStreamer's good plugins are not installed, and so is udpSink().
    [[nodiscard]] GstElement *jpegEncoder() const { return m_jpegEncoder.get(); }
    [[nodiscard]] GstElement *udpSink() const { return m_udpSink.get(); }

private:
    void keepPicture(GstBuffer *picture);

    ObjectReference<GstElement> m_pipeline;
    ObjectReference<GstElement> m_jpegEncoder;
    ObjectReference<GstElement> m_udpSink;
    std::atomic<int> m_frameCount = 0; // written by a thread of the pipeline
    std::atomic<bool> m_pictureWanted = false;
    std::mutex m_pictureMutex; // protects m_picture, which a thread of the pipeline sets
    MiniObjectReference<GstBuffer> m_picture;
};
