#pragma once

#include <gst/gst.h>

/// Tells GStreamer's device monitors of the cameras in the file, and of every change of it.
bool registerVirtualCameraDeviceProvider(GstPlugin *plugin);
