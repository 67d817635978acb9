#pragma once

#include "gstreferences.h"

#include <QStringList>
#include <QVariantList>

/// What tells a source element which camera to open: one of its properties.
struct SourceProperty
{
    QString name;  ///< "device", "device-index", "device-path", or empty
    QString value; ///< in GStreamer's text form
};

/*!
 * The frame sizes of a camera, widest first.
 *
 * Each is a map of "width" and "height" in pixels, "string", for example 640x480, and "framerates".
 */
[[nodiscard]] QVariantList availableResolutions(const GstCaps *caps);

/*!
 * Appends a frame size unless the list has it. The first entry of a size wins: frame rates of
 * later ones, in other pixel formats, are dropped.
 *
 * Texts that are no positive number, such as ranges, append nothing.
 */
void addAvailableResolution(QVariantList *resolutions, const QStringList &framerates,
                            const QString &width, const QString &height);

/// The property that selects this device. "device" and "device-index" go before "device-path".
[[nodiscard]] SourceProperty retrieveCameraDeviceProperty(GstDevice *device);
