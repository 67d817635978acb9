#pragma once

#include "camerafile.h"

#include <gst/gst.h>

/*!
 * Registers the sources of pictures: an element factory for each set of properties that can select
 * a camera.
 *
 * Like that of a real camera, a source does not start without its camera, gives only formats of the
 * camera's caps, and fails when the camera is unplugged. Without properties it shows the first
 * camera of the file.
 */
bool registerVirtualCameraSources(GstPlugin *plugin);

/// Returns a new source that is set to this camera, or null if no factory has its properties. A
/// camera with "factory=none" instead of properties gets a source without pads and without a
/// factory.
GstElement *createVirtualCameraSource(const VirtualCamera &camera, const char *name);
