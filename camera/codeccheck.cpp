// The part of the camera manager that accepts or refuses a video file.

#include "cameraemulationmanager.h"

#include <gst/pbutils/pbutils.h>

#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

static constexpr GstClockTime timeout = 2 * GST_SECOND;

struct VideoStream
{
    QString codec; ///< "VP8 video" for example; empty if the file tells none
    QSize size;
};

static QString codecOf(GstDiscovererStreamInfo *stream)
{
    gchar *codec = nullptr;
    if (const GstTagList *tags = gst_discoverer_stream_info_get_tags(stream))
        gst_tag_list_get_string(tags, GST_TAG_VIDEO_CODEC, &codec);
    return takeText(codec);
}

/// The first video stream of a file that tells its codec.
static VideoStream videoStreamOf(const QString &path)
{
    // opening a pipe would wait for ever for a writer
    if (!QFileInfo(path).isFile())
        return {};
    const ObjectReference<GstDiscoverer> discoverer(gst_discoverer_new(timeout, nullptr));
    if (!discoverer)
        return {};
    const QByteArray uri = QUrl::fromLocalFile(path).toEncoded();
    // also what was found out by the timeout counts
    const ObjectReference<GstDiscovererInfo> info(
        gst_discoverer_discover_uri(discoverer.get(), uri.constData(), nullptr));
    if (!info)
        return {};

    VideoStream result;
    GList *streams = gst_discoverer_info_get_video_streams(info.get());
    for (const GList *entry = streams; entry && result.codec.isEmpty(); entry = entry->next) {
        const auto *stream = static_cast<GstDiscovererVideoInfo *>(entry->data);
        result = {.codec = codecOf(static_cast<GstDiscovererStreamInfo *>(entry->data)),
                  .size = QSize(int(gst_discoverer_video_info_get_width(stream)),
                                int(gst_discoverer_video_info_get_height(stream)))};
    }
    gst_discoverer_stream_info_list_free(streams);
    return result;
}

bool CameraEmulationManager::checkVideoFile(const QString &path)
{
    const VideoStream stream = videoStreamOf(path);
    const bool success = stream.codec.contains("VP8"_L1) || stream.codec.contains("VP9"_L1);
    Q_EMIT videoFileCodecChecked(success, stream.codec);
    if (success && !StreamPipeline::isStreamable(stream.size))
        Q_EMIT streamSizeRefused(stream.size);
    return success && StreamPipeline::isStreamable(stream.size);
}
