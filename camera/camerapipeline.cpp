#include "camerapipeline.h"

#include <gst/gst.h>

using namespace Qt::StringLiterals;

static constexpr StreamPipeline::Names names{.pipeline = "camera-stream-pipeline",
                                             .jpegEncoder = "jpegencCam",
                                             .rtpPayloader = "rtpjpegpayCam",
                                             .udpSink = "udpsinkCam"};

static MiniObjectReference<GstCaps> capsOf(QSize size, const QString &framerate)
{
    QString text = u"video/x-raw"_s;
    if (size.width() >= 0 && size.height() >= 0)
        text += u",width=%1,height=%2"_s.arg(size.width()).arg(size.height());
    if (!framerate.isEmpty())
        text += u",framerate=%1"_s.arg(framerate);
    return MiniObjectReference<GstCaps>(gst_caps_from_string(text.toUtf8().constData()));
}

CameraPipeline::CameraPipeline()
    : StreamPipeline(names)
    , m_capsFilter(owned(gst_element_factory_make("capsfilter", "capsfilterCam")))
{
    if (!m_capsFilter || !jpegEncoder())
        return;
    gst_bin_add(GST_BIN(pipeline()), m_capsFilter.get());
    gst_element_link(m_capsFilter.get(), jpegEncoder());
}

void CameraPipeline::setCamera(const CameraSource &source, QSize size, const QString &framerate)
{
    stop();
    if (m_source)
        gst_bin_remove(GST_BIN(pipeline()), m_source.get());
    m_source
        = owned(gst_element_factory_make(source.factory.toUtf8().constData(), "sourcePluginCam"));
    if (!m_source || !m_capsFilter)
        return;

    // This function takes the text form of a property of any type.
    if (!source.property.isEmpty() && !source.value.isEmpty())
        gst_util_set_object_arg(G_OBJECT(m_source.get()), source.property.toUtf8().constData(),
                                source.value.toUtf8().constData());
    g_object_set(m_capsFilter.get(), "caps", capsOf(size, framerate).get(), nullptr);
    gst_bin_add(GST_BIN(pipeline()), m_source.get());
    gst_element_link(m_source.get(), m_capsFilter.get());
}
