// The part of the camera manager that accepts or refuses a video file.

#include "cameraemulationmanager.h"

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

/// The name of the first video codec that a file tells, "VP8 video" for example, or nothing.
static QString videoCodecOf(const QString &path)
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

    QString codec;
    GList *streams = gst_discoverer_info_get_video_streams(info.get());
    for (const GList *entry = streams; entry && codec.isEmpty(); entry = entry->next)
        codec = codecOf(static_cast<GstDiscovererStreamInfo *>(entry->data));
    gst_discoverer_stream_info_list_free(streams);
    return codec;
}

bool CameraEmulationManager::checkVideoFileForCodec(const QString &path)
{
    const QString codec = videoCodecOf(path);
    const bool success = codec.contains("VP8"_L1) || codec.contains("VP9"_L1);
    Q_EMIT videoFileCodecChecked(success, codec);
    return success;
}
