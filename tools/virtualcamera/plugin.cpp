#include "virtualcameradeviceprovider.h"
#include "virtualcamerasource.h"

static gboolean initPlugin(GstPlugin *plugin)
{
    return registerVirtualCameraSources(plugin) && registerVirtualCameraDeviceProvider(plugin);
}

#define PACKAGE "emulation-management"
GST_PLUGIN_DEFINE(GST_VERSION_MAJOR, GST_VERSION_MINOR, virtualcamera,
                  "Host cameras whose number, names and caps a text file tells", initPlugin, "1.0",
                  "Proprietary", "Emulation Management", "https://gstreamer.freedesktop.org")
