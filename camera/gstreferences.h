#pragma once

#include <QString>

#include <memory>

// Declared here so that users of this folder's headers need no GStreamer headers.
using GstBuffer = struct _GstBuffer;
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

/// Holds one reference to a GObject, for example an element, a bus, a device or a pad.
template<typename T>
using ObjectReference = std::unique_ptr<T, UnrefObject>;

/// Holds one reference to a GstMiniObject, for example caps.
template<typename T>
using MiniObjectReference = std::unique_ptr<T, UnrefMiniObject>;

/// Takes ownership of a new element, whose reference is still "floating". A bin may own it as well.
/// Null stays null.
[[nodiscard]] ObjectReference<GstElement> owned(GstElement *element);

/// Returns a UTF-8 text that GLib allocated, and frees the original. Null gives a null text.
[[nodiscard]] QString takeText(char *text);
