#include "virtualcameradeviceprovider.h"

#include "camerafile.h"
#include "virtualcamerasource.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

// Nobody notices so short a delay, and reading a small file so often costs almost nothing.
static constexpr std::chrono::milliseconds watchInterval(5);

namespace {

struct Device
{
    GstDevice device;
    VirtualCamera *camera;
};

struct DeviceClass
{
    GstDeviceClass device;
};

/// Watches the file on its own thread and updates the provider's devices.
class Watch
{
public:
    explicit Watch(GstDeviceProvider *provider);

private:
    void update();

    GstDeviceProvider *m_provider;
    std::string m_text; // of the file
    std::vector<std::pair<VirtualCamera, GstDevice *>> m_devices; // owned by the provider
    std::mutex m_mutex;
    std::condition_variable_any m_wakeUp;
    std::jthread m_thread; // destroyed first, because it uses the other members
};

struct Provider
{
    GstDeviceProvider provider;
    Watch *watch;
};

struct ProviderClass
{
    GstDeviceProviderClass provider;
};

} // namespace

static GType deviceType = G_TYPE_INVALID;

static GstDevice *createDevice(const VirtualCamera &camera)
{
    GstCaps *caps = gst_caps_from_string(camera.caps.c_str());
    auto *device = static_cast<GstDevice *>(g_object_new(deviceType, "display-name",
                                                         camera.name.c_str(), "device-class",
                                                         "Video/Source", "caps", caps, nullptr));
    reinterpret_cast<Device *>(device)->camera = new VirtualCamera(camera);
    if (caps)
        gst_caps_unref(caps);
    return device;
}

Watch::Watch(GstDeviceProvider *provider)
    : m_provider(provider)
{
    // device monitors must list the first cameras as soon as they have started
    update();
    m_thread = std::jthread([this](const std::stop_token &stop) {
        std::unique_lock lock(m_mutex);
        while (!stop.stop_requested()) {
            m_wakeUp.wait_for(lock, stop, watchInterval, [] { return false; });
            update();
        }
    });
}

void Watch::update()
{
    std::string text = readCameraFile();
    if (text == m_text)
        return;
    m_text = std::move(text);
    const std::vector<VirtualCamera> cameras = parseCameras(m_text);
    std::erase_if(m_devices, [&](const auto &entry) {
        if (std::ranges::find(cameras, entry.first) != cameras.end())
            return false;
        gst_device_provider_device_remove(m_provider, entry.second);
        return true;
    });
    for (const VirtualCamera &camera : cameras) {
        const auto isCamera = [&camera](const auto &entry) { return entry.first == camera; };
        if (std::ranges::any_of(m_devices, isCamera))
            continue;
        GstDevice *device = createDevice(camera);
        m_devices.emplace_back(camera, device);
        gst_device_provider_device_add(m_provider, device);
    }
}

static void initDeviceClass(gpointer deviceClass, gpointer)
{
    G_OBJECT_CLASS(deviceClass)->finalize = [](GObject *object) {
        delete reinterpret_cast<Device *>(object)->camera;
        G_OBJECT_CLASS(g_type_class_peek_parent(G_OBJECT_GET_CLASS(object)))->finalize(object);
    };
    GST_DEVICE_CLASS(deviceClass)->create_element = [](GstDevice *device, const gchar *name) {
        return createVirtualCameraSource(*reinterpret_cast<Device *>(device)->camera, name);
    };
}

static void initProviderClass(gpointer providerClass, gpointer)
{
    GstDeviceProviderClass *overrides = GST_DEVICE_PROVIDER_CLASS(providerClass);
    overrides->probe = [](GstDeviceProvider *) {
        GList *devices = nullptr;
        for (const VirtualCamera &camera : parseCameras(readCameraFile()))
            devices = g_list_append(devices, gst_object_ref_sink(createDevice(camera)));
        return devices;
    };
    overrides->start = [](GstDeviceProvider *provider) -> gboolean {
        reinterpret_cast<Provider *>(provider)->watch = new Watch(provider);
        return TRUE;
    };
    overrides->stop = [](GstDeviceProvider *provider) {
        delete std::exchange(reinterpret_cast<Provider *>(provider)->watch, nullptr);
    };
    gst_device_provider_class_set_static_metadata(overrides, "Virtual cameras", "Source/Video",
                                                  "Lists the cameras of a text file",
                                                  "The Emulation Management developers");
}

bool registerVirtualCameraDeviceProvider(GstPlugin *plugin)
{
    deviceType
        = g_type_register_static_simple(GST_TYPE_DEVICE, "VirtualCameraDevice", sizeof(DeviceClass),
                                        initDeviceClass, sizeof(Device), nullptr, GTypeFlags(0));
    const GType providerType = g_type_register_static_simple(
        GST_TYPE_DEVICE_PROVIDER, "VirtualCameraDeviceProvider", sizeof(ProviderClass),
        initProviderClass, sizeof(Provider), nullptr, GTypeFlags(0));
    return gst_device_provider_register(plugin, "virtualcameradeviceprovider", GST_RANK_PRIMARY,
                                        providerType)
           == TRUE;
}
