// The part of the camera manager that follows the host's cameras.

#include "cameraemulationmanager.h"

#include <gst/gst.h>

#include <vector>

static std::vector<ObjectReference<GstDevice>> devicesOf(GstDeviceMonitor *monitor)
{
    std::vector<ObjectReference<GstDevice>> devices;
    GList *list = gst_device_monitor_get_devices(monitor);
    for (const GList *entry = list; entry; entry = entry->next)
        devices.emplace_back(static_cast<GstDevice *>(entry->data));
    g_list_free(list);
    return devices;
}

void CameraEmulationManager::startDeviceMonitor()
{
    m_deviceMonitor.reset(gst_device_monitor_new());
    const ObjectReference<GstBus> bus(gst_device_monitor_get_bus(m_deviceMonitor.get()));
    gst_bus_add_watch(bus.get(), &CameraEmulationManager::onDeviceListChanged, this);
    const MiniObjectReference<GstCaps> caps(gst_caps_new_empty_simple("video/x-raw"));
    gst_device_monitor_add_filter(m_deviceMonitor.get(), "Video/Source", caps.get());
    gst_device_monitor_start(m_deviceMonitor.get());
}

void CameraEmulationManager::stopDeviceMonitor()
{
    const ObjectReference<GstBus> bus(gst_device_monitor_get_bus(m_deviceMonitor.get()));
    gst_bus_remove_watch(bus.get());
    gst_device_monitor_stop(m_deviceMonitor.get());
    m_deviceMonitor.reset();
}

void CameraEmulationManager::listCameras()
{
    for (const ObjectReference<GstDevice> &device : devicesOf(m_deviceMonitor.get()))
        addCameraSettings(device.get());
}

void CameraEmulationManager::setupCameraStreamPipeline()
{
    listCameras();
    if (!m_cameras.isEmpty() && !m_cameras.contains(m_cameraName))
        selectFirstCamera();
    applySelection(m_playing == Source::Camera);
}

void CameraEmulationManager::selectFirstCamera()
{
    setCameraName(m_cameras.firstKey());
}

void CameraEmulationManager::addCameraSettings(GstDevice *device)
{
    const MiniObjectReference<GstCaps> caps(gst_device_get_caps(device));
    m_cameras.insert(
        takeText(gst_device_get_display_name(device)),
        {.resolutions = availableResolutions(caps.get()), .source = retrieveCameraSource(device)});
    Q_EMIT camerasChanged();
    Q_EMIT resolutionsChanged();
    Q_EMIT frameratesChanged();
}

void CameraEmulationManager::removeCameraSettings(const QString &name)
{
    const bool isSelected = name == m_cameraName;
    if (m_playing == Source::Camera && (isSelected || name == m_appliedCameraName))
        stopCameraStream();
    if (name == m_appliedCameraName)
        m_appliedCameraName.clear(); // plugged in again it may be opened in another way
    m_cameras.remove(name);
    Q_EMIT camerasChanged();
    if (m_cameras.isEmpty() || !isSelected)
        return;
    selectFirstCamera();
    applySelection(false);
}

void CameraEmulationManager::updateCamerasList()
{
    if (m_playing == Source::Camera)
        stopCameraStream();
    stopDeviceMonitor();
    m_cameras.clear();
    startDeviceMonitor();
    listCameras();
    // Where the main loop does not dispatch GLib's context, only this tells that no camera is left.
    if (m_cameras.isEmpty())
        Q_EMIT camerasChanged();
    else
        selectFirstCamera();
    applySelection(false);
}

int CameraEmulationManager::onDeviceListChanged(GstBus *bus, GstMessage *message, void *manager)
{
    Q_UNUSED(bus)
    auto *self = static_cast<CameraEmulationManager *>(manager);
    GstDevice *device = nullptr;
    switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_DEVICE_ADDED:
        gst_message_parse_device_added(message, &device);
        break;
    case GST_MESSAGE_DEVICE_REMOVED:
        gst_message_parse_device_removed(message, &device);
        break;
    default:
        return G_SOURCE_CONTINUE;
    }
    const ObjectReference<GstDevice> reference(device);
    const QString name = takeText(gst_device_get_display_name(device));
    const bool isKnown = self->m_cameras.contains(name);
    if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_DEVICE_REMOVED) {
        if (isKnown)
            self->removeCameraSettings(name);
    } else if (!isKnown) {
        self->addCameraSettings(device);
        if (self->m_cameras.size() == 1)
            self->applySelection(self->m_playing == Source::Camera);
    }
    return G_SOURCE_CONTINUE;
}
