#include "cameradiscovery.h"

#include <gst/gst.h>

CameraDiscovery::CameraDiscovery(QObject *parent)
    : QObject(parent)
{}

CameraDiscovery::~CameraDiscovery()
{
    stopMonitor();
}

void CameraDiscovery::readCameras()
{
    if (!m_monitor)
        startMonitor();
    GList *devices = gst_device_monitor_get_devices(m_monitor.get());
    for (const GList *entry = devices; entry; entry = entry->next)
        readCamera(static_cast<GstDevice *>(entry->data));
    g_list_free_full(devices, gst_object_unref);
}

void CameraDiscovery::restart()
{
    stopMonitor();
    m_cameras.clear();
    readCameras();
}

void CameraDiscovery::startMonitor()
{
    gst_init(nullptr, nullptr);
    m_monitor.reset(gst_device_monitor_new());
    const ObjectReference<GstBus> bus(gst_device_monitor_get_bus(m_monitor.get()));
    gst_bus_add_watch(bus.get(), &CameraDiscovery::onDeviceListChanged, this);
    const MiniObjectReference<GstCaps> caps(gst_caps_new_empty_simple("video/x-raw"));
    gst_device_monitor_add_filter(m_monitor.get(), "Video/Source", caps.get());
    gst_device_monitor_start(m_monitor.get());
}

void CameraDiscovery::stopMonitor()
{
    if (!m_monitor)
        return;
    const ObjectReference<GstBus> bus(gst_device_monitor_get_bus(m_monitor.get()));
    gst_bus_remove_watch(bus.get());
    gst_device_monitor_stop(m_monitor.get());
    m_monitor.reset();
}

void CameraDiscovery::readCamera(GstDevice *device)
{
    const MiniObjectReference<GstCaps> caps(gst_device_get_caps(device));
    m_cameras.insert(
        takeText(gst_device_get_display_name(device)),
        {.resolutions = availableResolutions(caps.get()), .source = retrieveCameraSource(device)});
    Q_EMIT cameraRead();
}

int CameraDiscovery::onDeviceListChanged(GstBus *bus, GstMessage *message, void *discovery)
{
    Q_UNUSED(bus)
    auto *self = static_cast<CameraDiscovery *>(discovery);
    GstDevice *device = nullptr;
    if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_DEVICE_ADDED)
        gst_message_parse_device_added(message, &device);
    else if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_DEVICE_REMOVED)
        gst_message_parse_device_removed(message, &device);
    if (!device)
        return G_SOURCE_CONTINUE;

    const ObjectReference<GstDevice> reference(device);
    const QString name = takeText(gst_device_get_display_name(device));
    const bool isKnown = self->m_cameras.contains(name);
    if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_DEVICE_ADDED && !isKnown) {
        self->readCamera(device);
        Q_EMIT self->cameraPlugged();
    } else if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_DEVICE_REMOVED && isKnown) {
        Q_EMIT self->cameraUnplugged(name);
        self->m_cameras.remove(name);
        Q_EMIT self->cameraRemoved(name);
    }
    return G_SOURCE_CONTINUE;
}
