#pragma once

#include <QSize>
#include <QString>

/// The video of a file.
struct VideoStream
{
    QString codec; ///< "VP8 video" for example; empty if the file does not name it
    QSize size; ///< in pixels
};

/*!
 * The first video stream of a local file that names its codec.
 *
 * Blocks for up to two seconds. The codec is empty if the file cannot be read or recognised in this
 * time, or has no such stream.
 */
[[nodiscard]] VideoStream firstVideoStream(const QString &path);

/// True for VP8 and VP9. Files of other codecs are not streamed.
[[nodiscard]] bool isSupportedCodec(const QString &codec);
