#pragma once

#include "gstreferences.h"

#include <QStringList>
#include <QVariantList>

/// The GStreamer element that reads a camera, and its property that selects this camera.
struct CameraSource
{
    QString factory; ///< name of the element's factory; empty if it has no factory
    QString property; ///< "device", "device-index" or "device-path"; empty if it has none of them
    QString value; ///< the property's value in GStreamer's text form
};

/*!
 * The frame sizes of a camera, widest first. Empty if \a caps is null.
 *
 * Each entry is a map with "width" and "height" in pixels, "string" (640x480 for example) and
 * "framerates", see initAvailableFramerates(). Entries of \a caps are skipped if their frame rate
 * is a list of ranges, or if their width or height is not a single positive number.
 */
[[nodiscard]] QVariantList availableResolutions(const GstCaps *caps);

/*!
 * Appends a frame size, in pixels, unless the list has it already. The frame rates that the same
 * size has in other pixel formats are therefore dropped.
 *
 * Appends nothing if a text is not a positive number, for example if it is a range.
 */
void addAvailableResolution(QVariantList *resolutions, const QStringList &framerates,
                            const QString &width, const QString &height);

/// How to open this device. Prefers the properties "device" and "device-index" to "device-path".
[[nodiscard]] CameraSource retrieveCameraSource(GstDevice *device);
