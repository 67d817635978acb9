#include "gstreferences.h"

#include <gst/gst.h>

void UnrefObject::operator()(void *object) const noexcept
{
    g_object_unref(object);
}

void UnrefMiniObject::operator()(void *object) const noexcept
{
    gst_mini_object_unref(GST_MINI_OBJECT_CAST(object));
}

ObjectReference<GstElement> owned(GstElement *element)
{
    if (element)
        g_object_ref_sink(element);
    return ObjectReference<GstElement>(element);
}

QString takeText(char *text)
{
    const QString result = QString::fromUtf8(text);
    g_free(text);
    return result;
}
