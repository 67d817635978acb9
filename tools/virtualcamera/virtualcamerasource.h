#pragma once

#include "camerafile.h"

#include <gst/gst.h>

/*!
 * A source of pictures, one element factory for each set of properties that select a camera.
 *
 * As the source of a real camera it cannot be started without its camera, gives only what the
 * camera's caps have, and fails when the camera is unplugged. Without properties it is the first
 * camera of the file.
 */
bool registerVirtualCameraSources(GstPlugin *plugin);

/// A new source that is set to this camera, or null if no factory has its properties. Without pads
/// and without a factory where the camera has "factory=none" instead of properties.
GstElement *createVirtualCameraSource(const VirtualCamera &camera, const char *name);
