#pragma once

#include "gstreferences.h"

#include <QStringList>
#include <QVariantList>

/// The element that gives a camera's pictures, and the property that tells it which camera to open.
struct CameraSource
{
    QString factory; ///< of the element; empty if it has none
    QString property; ///< "device", "device-index", "device-path", or empty
    QString value; ///< of the property, in GStreamer's text form
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

/// What opens this device. "device" and "device-index" go before "device-path".
[[nodiscard]] CameraSource retrieveCameraSource(GstDevice *device);
