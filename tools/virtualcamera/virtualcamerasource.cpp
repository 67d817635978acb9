#include "virtualcamerasource.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <optional>

namespace {

struct Source
{
    GstBin bin;
    GstElement *pattern;    // owned by the bin
    GstElement *capsFilter; // owned by the bin
    std::map<std::string, std::string> *properties;
};

struct SourceClass
{
    GstBinClass bin;
};

/// The properties of a factory, in the order in which its class lists them.
struct Kind
{
    const char *factory;
    std::array<const char *, 2> properties; // numbered from 1
};

} // namespace

static constexpr std::array kinds{
    Kind{"virtualcamerasrc", {"device"}},
    Kind{"virtualcameraindexsrc", {"device-index"}},
    Kind{"virtualcamerapathsrc", {"device-path"}},
    Kind{"virtualcamerabothsrc", {"device-path", "device"}},
    Kind{"virtualcameraplainsrc", {}},
};

static constexpr const char *indexProperty = "device-index";

static GstBinClass *parentClass(gpointer instance)
{
    return GST_BIN_CLASS(g_type_class_peek_parent(G_OBJECT_GET_CLASS(instance)));
}

/// The camera that the properties select, if it is plugged in.
static std::optional<VirtualCamera> selectedCamera(const Source *source)
{
    const auto isSelected = [source](const VirtualCamera &camera) {
        return std::ranges::all_of(*source->properties, [&camera](const auto &property) {
            return std::ranges::find(camera.properties,
                                     std::pair<std::string, std::string>(property))
                   != camera.properties.end();
        });
    };
    const std::vector<VirtualCamera> cameras = parseCameras(readCameraFile());
    const auto camera = std::ranges::find_if(cameras, isSelected);
    return camera == cameras.end() ? std::nullopt : std::optional(*camera);
}

static void setProperty(GObject *object, guint, const GValue *value, GParamSpec *property)
{
    auto &properties = *reinterpret_cast<Source *>(object)->properties;
    if (G_VALUE_HOLDS_INT(value)) {
        properties[property->name] = std::to_string(g_value_get_int(value));
    } else {
        const char *text = g_value_get_string(value);
        properties[property->name] = text ? text : "";
    }
}

static void getProperty(GObject *object, guint, GValue *value, GParamSpec *property)
{
    const auto &properties = *reinterpret_cast<Source *>(object)->properties;
    const auto found = properties.find(property->name);
    if (found == properties.end())
        g_param_value_set_default(property, value);
    else if (G_VALUE_HOLDS_INT(value))
        g_value_set_int(value, std::atoi(found->second.c_str()));
    else
        g_value_set_string(value, found->second.c_str());
}

static void finalize(GObject *object)
{
    delete reinterpret_cast<Source *>(object)->properties;
    G_OBJECT_CLASS(parentClass(object))->finalize(object);
}

/// The caps of the pictures. Caps without a format get the most common one.
static GstCaps *capsOf(const VirtualCamera &camera)
{
    GstCaps *caps = gst_caps_from_string(camera.caps.c_str());
    const guint size = caps ? gst_caps_get_size(caps) : 0;
    for (guint index = 0; index < size; ++index) {
        GstStructure *structure = gst_caps_get_structure(caps, index);
        if (!gst_structure_has_field(structure, "format"))
            gst_structure_set(structure, "format", G_TYPE_STRING, "YUY2", nullptr);
    }
    return caps;
}

/// Each camera shows another pattern: colour bars, circles, checkers or a ball.
static int patternOf(const VirtualCamera &camera)
{
    constexpr std::array patterns{0, 11, 10, 18}; // of videotestsrc
    return patterns.at(std::hash<std::string>()(camera.name) % patterns.size());
}

static GstStateChangeReturn changeState(GstElement *element, GstStateChange transition)
{
    auto *source = reinterpret_cast<Source *>(element);
    if (transition == GST_STATE_CHANGE_NULL_TO_READY) {
        const std::optional<VirtualCamera> camera = selectedCamera(source);
        if (!camera) {
            GST_ELEMENT_ERROR(element, RESOURCE, NOT_FOUND, ("The camera is not there."),
                              (nullptr));
            return GST_STATE_CHANGE_FAILURE;
        }
        GstCaps *caps = capsOf(*camera);
        g_object_set(source->capsFilter, "caps", caps, nullptr);
        g_object_set(source->pattern, "pattern", patternOf(*camera), nullptr);
        if (caps)
            gst_caps_unref(caps);
    }
    return GST_ELEMENT_CLASS(parentClass(element))->change_state(element, transition);
}

static GstPadProbeReturn failWithoutCamera(GstPad *, GstPadProbeInfo *info, gpointer source)
{
    if (selectedCamera(static_cast<Source *>(source)))
        return GST_PAD_PROBE_OK;
    gst_buffer_unref(GST_PAD_PROBE_INFO_BUFFER(info));
    GST_PAD_PROBE_INFO_FLOW_RETURN(info) = GST_FLOW_ERROR;
    return GST_PAD_PROBE_HANDLED;
}

static void initInstance(GTypeInstance *instance, gpointer)
{
    auto *source = reinterpret_cast<Source *>(instance);
    source->properties = new std::map<std::string, std::string>;
    source->pattern = gst_element_factory_make("videotestsrc", nullptr);
    source->capsFilter = gst_element_factory_make("capsfilter", nullptr);
    g_object_set(source->pattern, "is-live", TRUE, nullptr);
    gst_bin_add_many(&source->bin, source->pattern, source->capsFilter, nullptr);
    gst_element_link(source->pattern, source->capsFilter);

    GstPad *pad = gst_element_get_static_pad(source->capsFilter, "src");
    gst_pad_add_probe(pad, GST_PAD_PROBE_TYPE_BUFFER, failWithoutCamera, source, nullptr);
    gst_element_add_pad(GST_ELEMENT(source), gst_ghost_pad_new("src", pad));
    gst_object_unref(pad);
}

static void initClass(gpointer sourceClass, gpointer data)
{
    GObjectClass *objectClass = G_OBJECT_CLASS(sourceClass);
    objectClass->set_property = setProperty;
    objectClass->get_property = getProperty;
    objectClass->finalize = finalize;
    guint number = 0;
    for (const char *name : static_cast<const Kind *>(data)->properties) {
        if (!name)
            continue;
        const auto flags = static_cast<GParamFlags>(G_PARAM_READWRITE | G_PARAM_STATIC_STRINGS);
        GParamSpec *property = std::string_view(name) == indexProperty
                                   ? g_param_spec_int(name, name, name, -1, G_MAXINT, -1, flags)
                                   : g_param_spec_string(name, name, name, nullptr, flags);
        g_object_class_install_property(objectClass, ++number, property);
    }
    GST_ELEMENT_CLASS(sourceClass)->change_state = changeState;
    gst_element_class_set_static_metadata(GST_ELEMENT_CLASS(sourceClass), "Virtual camera",
                                          "Source/Video", "Shows the pictures of a virtual camera",
                                          "The Emulation Management developers");
}

bool registerVirtualCameraSources(GstPlugin *plugin)
{
    return std::ranges::all_of(kinds, [plugin](const Kind &kind) {
        const GTypeInfo info{.class_size = sizeof(SourceClass),
                             .base_init = nullptr,
                             .base_finalize = nullptr,
                             .class_init = initClass,
                             .class_finalize = nullptr,
                             .class_data = &kind,
                             .instance_size = sizeof(Source),
                             .n_preallocs = 0,
                             .instance_init = initInstance,
                             .value_table = nullptr};
        const GType type = g_type_register_static(GST_TYPE_BIN, kind.factory, &info, GTypeFlags(0));
        return gst_element_register(plugin, kind.factory, GST_RANK_NONE, type) == TRUE;
    });
}

GstElement *createVirtualCameraSource(const VirtualCamera &camera, const char *name)
{
    const std::pair<std::string, std::string> noFactory("factory", "none");
    if (camera.properties == std::vector{noFactory}) {
        static const GType type = g_type_register_static_simple(
            GST_TYPE_BIN, "VirtualCameraSource", sizeof(GstBinClass), nullptr, sizeof(GstBin),
            nullptr, GTypeFlags(0));
        return GST_ELEMENT(g_object_new(type, "name", name, nullptr));
    }
    const auto has = [&camera](const char *property) {
        return !property || std::ranges::any_of(camera.properties, [property](const auto &own) {
            return own.first == property;
        });
    };
    const auto *const kind = std::ranges::find_if(kinds, [&](const Kind &candidate) {
        const auto count = std::ranges::count_if(candidate.properties, std::identity());
        return static_cast<size_t>(count) == camera.properties.size()
               && std::ranges::all_of(candidate.properties, has);
    });
    if (kind == kinds.end())
        return nullptr;
    GstElement *element = gst_element_factory_make(kind->factory, name);
    for (const auto &[property, value] : camera.properties)
        gst_util_set_object_arg(G_OBJECT(element), property.c_str(), value.c_str());
    return element;
}
