#include "codeccheck.h"

#include "gstreferences.h"

#include <gst/pbutils/pbutils.h>

#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

static constexpr GstClockTime timeout = 2 * GST_SECOND;

static QString codecOf(GstDiscovererStreamInfo *stream)
{
    gchar *codec = nullptr;
    if (const GstTagList *tags = gst_discoverer_stream_info_get_tags(stream))
        gst_tag_list_get_string(tags, GST_TAG_VIDEO_CODEC, &codec);
    return takeText(codec);
}

VideoStream firstVideoStream(const QString &path)
{
    // Opening a named pipe would block until another process writes to it.
    if (!QFileInfo(path).isFile())
        return {};
    gst_init(nullptr, nullptr);
    const ObjectReference<GstDiscoverer> discoverer(gst_discoverer_new(timeout, nullptr));
    if (!discoverer)
        return {};
    const QByteArray uri = QUrl::fromLocalFile(path).toEncoded();
    // After a timeout or an error, the information that was found until then is returned.
    const ObjectReference<GstDiscovererInfo> info(
        gst_discoverer_discover_uri(discoverer.get(), uri.constData(), nullptr));
    if (!info)
        return {};

    VideoStream result;
    GList *streams = gst_discoverer_info_get_video_streams(info.get());
    for (const GList *entry = streams; entry && result.codec.isEmpty(); entry = entry->next) {
        const auto *stream = static_cast<GstDiscovererVideoInfo *>(entry->data);
        result = {.codec = codecOf(static_cast<GstDiscovererStreamInfo *>(entry->data)),
                  .size = QSize(static_cast<int>(gst_discoverer_video_info_get_width(stream)),
                                static_cast<int>(gst_discoverer_video_info_get_height(stream)))};
    }
    gst_discoverer_stream_info_list_free(streams);
    return result;
}

bool isSupportedCodec(const QString &codec)
{
    return codec.contains("VP8"_L1) || codec.contains("VP9"_L1);
}
