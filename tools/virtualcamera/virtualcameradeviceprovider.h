#pragma once

#include <gst/gst.h>

/// Makes GStreamer's device monitors list the cameras in the file and follow its changes.
bool registerVirtualCameraDeviceProvider(GstPlugin *plugin);
