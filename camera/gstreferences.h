#pragma once

#include <QString>

#include <memory>

// The types of GStreamer that stand in the headers of this folder, whose users need not know it.
using GstBus = struct _GstBus;
using GstCaps = struct _GstCaps;
using GstDevice = struct _GstDevice;
using GstDeviceMonitor = struct _GstDeviceMonitor;
using GstElement = struct _GstElement;
using GstMessage = struct _GstMessage;

struct UnrefObject
{
    void operator()(void *object) const noexcept;
};

struct UnrefMiniObject
{
    void operator()(void *object) const noexcept;
};

/// Holds one reference to a GObject: an element, a bus, a device, a pad.
template<typename T>
using ObjectReference = std::unique_ptr<T, UnrefObject>;

/// Holds one reference to a GstMiniObject: caps, a message, a list of tags.
template<typename T>
using MiniObjectReference = std::unique_ptr<T, UnrefMiniObject>;

/// Owns an element that nobody owns yet (its reference is "floating"); a bin may own it as well.
[[nodiscard]] ObjectReference<GstElement> owned(GstElement *element);

/// Frees a text in UTF-8 that GLib made and returns it; null for none.
[[nodiscard]] QString takeText(char *text);
