#include "cameracapabilities.h"

#include "framerates.h"

#include <gst/gst.h>

#include <QVariantMap>

#include <algorithm>
#include <memory>
#include <span>

using namespace Qt::StringLiterals;

static QString serializedField(const GstStructure *structure, const char *name)
{
    const GValue *value = gst_structure_get_value(structure, name);
    return value ? takeText(gst_value_serialize(value)) : QString();
}

static QString serializedProperty(GstElement *element, const GParamSpec *property)
{
    if (!(property->flags & G_PARAM_READABLE))
        return {};
    GValue value = G_VALUE_INIT;
    g_object_get_property(G_OBJECT(element), property->name,
                          g_value_init(&value, property->value_type));
    const QString text = takeText(gst_value_serialize(&value));
    g_value_unset(&value);
    return text;
}

QVariantList availableResolutions(const GstCaps *caps)
{
    QVariantList resolutions;
    const guint size = caps ? gst_caps_get_size(caps) : 0;
    for (guint index = 0; index < size; ++index) {
        const GstStructure *structure = gst_caps_get_structure(caps, index);
        const QString framerateText = serializedField(structure, "framerate");
        if (framerateText.contains("GstFractionRange"_L1))
            continue; // a list of ranges, which initAvailableFramerates() cannot read
        QStringList framerates;
        initAvailableFramerates(&framerates, framerateText);
        addAvailableResolution(&resolutions, framerates, serializedField(structure, "width"),
                               serializedField(structure, "height"));
    }
    std::ranges::stable_sort(resolutions, std::ranges::greater(), [](const QVariant &resolution) {
        return resolution.toMap().value(u"width"_s).toInt();
    });
    return resolutions;
}

void addAvailableResolution(QVariantList *resolutions, const QStringList &framerates,
                            const QString &width, const QString &height)
{
    const int widthInPixels = width.toInt();
    const int heightInPixels = height.toInt();
    if (widthInPixels < 1 || heightInPixels < 1)
        return;
    const QString string = u"%1x%2"_s.arg(widthInPixels).arg(heightInPixels);
    const bool isKnown = std::ranges::any_of(*resolutions, [&](const QVariant &resolution) {
        return resolution.toMap().value(u"string"_s) == string;
    });
    if (isKnown)
        return;
    resolutions->append(QVariantMap{{u"width"_s, widthInPixels},
                                    {u"height"_s, heightInPixels},
                                    {u"string"_s, string},
                                    {u"framerates"_s, framerates}});
}

CameraSource retrieveCameraSource(GstDevice *device)
{
    CameraSource source;
    const ObjectReference<GstElement> element = owned(gst_device_create_element(device, nullptr));
    if (!element)
        return source;
    if (GstElementFactory *factory = gst_element_get_factory(element.get()))
        source.factory = QString::fromUtf8(GST_OBJECT_NAME(factory));
    guint count = 0;
    const std::unique_ptr<GParamSpec *, decltype(&g_free)> properties(
        g_object_class_list_properties(G_OBJECT_GET_CLASS(element.get()), &count), &g_free);
    for (const GParamSpec *property : std::span(properties.get(), count)) {
        const QLatin1StringView name(property->name);
        const bool isPreferred = name == "device"_L1 || name == "device-index"_L1;
        if (!isPreferred && name != "device-path"_L1)
            continue;
        source.property = name;
        source.value = serializedProperty(element.get(), property);
        if (isPreferred)
            break;
    }
    return source;
}
