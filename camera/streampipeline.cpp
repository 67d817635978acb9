#include "streampipeline.h"

#include <gst/gst.h>

#include <algorithm>
#include <utility>

static constexpr int jpegQuality = 50;

static GstBusSyncReply dropMessage(GstBus *bus, GstMessage *message, gpointer userData)
{
    Q_UNUSED(bus)
    Q_UNUSED(userData)
    gst_message_unref(message);
    return GST_BUS_DROP;
}

static GstPadProbeReturn countFrame(GstPad *pad, GstPadProbeInfo *info, void *frameCount)
{
    Q_UNUSED(pad)
    Q_UNUSED(info)
    ++*static_cast<std::atomic<int> *>(frameCount);
    return GST_PAD_PROBE_PASS;
}

// The elements of the pipeline only read pictures, so one can be kept without a copy.
void StreamPipeline::keepPicture(GstBuffer *picture)
{
    if (!m_pictureWanted.exchange(false))
        return;
    const std::scoped_lock lock(m_pictureMutex);
    m_picture.reset(gst_buffer_ref(picture));
}

QByteArray StreamPipeline::takePicture()
{
    MiniObjectReference<GstBuffer> picture;
    {
        const std::scoped_lock lock(m_pictureMutex);
        picture.swap(m_picture);
    }
    m_pictureWanted = true;
    if (!picture)
        return {};
    QByteArray jpeg(qsizetype(gst_buffer_get_size(picture.get())), Qt::Uninitialized);
    gst_buffer_extract(picture.get(), 0, jpeg.data(), gsize(jpeg.size()));
    return jpeg;
}

StreamPipeline::StreamPipeline(const Names &names)
{
    gst_init(nullptr, nullptr);
    m_pipeline = owned(gst_pipeline_new(names.pipeline));
    // Messages pile up unless they are read or dropped, and nobody reads these.
    const ObjectReference<GstBus> bus(gst_element_get_bus(m_pipeline.get()));
    gst_bus_set_sync_handler(bus.get(), dropMessage, nullptr, nullptr);

    auto jpegEncoder = owned(gst_element_factory_make("jpegenc", names.jpegEncoder));
    const auto rtpPayloader = owned(gst_element_factory_make("rtpjpegpay", names.rtpPayloader));
    auto udpSink = owned(gst_element_factory_make("udpsink", names.udpSink));
    if (!jpegEncoder || !rtpPayloader || !udpSink)
        return;

    g_object_set(jpegEncoder.get(), "quality", jpegQuality, nullptr);
    g_object_set(udpSink.get(), "host", host, "port", udpPort, nullptr);
    gst_bin_add_many(GST_BIN(m_pipeline.get()), jpegEncoder.get(), rtpPayloader.get(),
                     udpSink.get(), nullptr);
    gst_element_link_many(jpegEncoder.get(), rtpPayloader.get(), udpSink.get(), nullptr);
    // The payloader pushes the packets of one frame as one list.
    const ObjectReference<GstPad> pad(gst_element_get_static_pad(udpSink.get(), "sink"));
    gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_BUFFER_LIST, countFrame, &m_frameCount,
                      nullptr);
    const ObjectReference<GstPad> pictures(gst_element_get_static_pad(jpegEncoder.get(), "src"));
    const auto keep = [](GstPad *, GstPadProbeInfo *info, void *self) {
        static_cast<StreamPipeline *>(self)->keepPicture(GST_PAD_PROBE_INFO_BUFFER(info));
        return GST_PAD_PROBE_OK;
    };
    gst_pad_add_probe(pictures.get(), GST_PAD_PROBE_TYPE_BUFFER, keep, this, nullptr);
    m_jpegEncoder = std::move(jpegEncoder);
    m_udpSink = std::move(udpSink);
}

StreamPipeline::~StreamPipeline()
{
    gst_element_set_state(m_pipeline.get(), GST_STATE_NULL);
}

void StreamPipeline::play()
{
    gst_element_set_state(m_pipeline.get(), GST_STATE_PLAYING);
}

void StreamPipeline::stop()
{
    // Does not query the state first: that blocks forever on a file without frames.
    gst_element_set_state(m_pipeline.get(), GST_STATE_NULL);
}

QSize StreamPipeline::frameSize() const
{
    QSize size;
    if (!m_jpegEncoder)
        return size;
    const ObjectReference<GstPad> pad(gst_element_get_static_pad(m_jpegEncoder.get(), "src"));
    const MiniObjectReference<GstCaps> caps(gst_pad_get_current_caps(pad.get()));
    if (caps) {
        gst_structure_get(gst_caps_get_structure(caps.get(), 0), "width", G_TYPE_INT,
                          &size.rwidth(), "height", G_TYPE_INT, &size.rheight(), nullptr);
    }
    return size;
}

bool StreamPipeline::isStreamable(QSize size)
{
    return std::max(size.width(), size.height()) <= maximumSideLength;
}
