#pragma once

#include <gst/gst.h>
#include <gst/video/video.h>

#include <memory>

// Owning handles of GStreamer's reference-counted objects: one reference each, given back when the handle
// goes. A function that takes a handle by value takes the reference over; a raw pointer is only borrowed.

template<auto release> struct Release {
    template<typename T> void operator()(T *held) const { release(held); }
};

template<typename T> void unrefMiniObject(T *object)
{
    gst_mini_object_unref(GST_MINI_OBJECT_CAST(object));
}

inline void releaseBufferPool(GstBufferPool *pool)
{
    gst_buffer_pool_set_active(pool, FALSE);
    gst_object_unref(pool);
}

template<typename T> using ObjectHandle = std::unique_ptr<T, Release<gst_object_unref>>;
template<typename T> using MiniObjectHandle = std::unique_ptr<T, Release<unrefMiniObject<T>>>;

using ElementHandle = ObjectHandle<GstElement>;
using BufferPoolHandle = std::unique_ptr<GstBufferPool, Release<releaseBufferPool>>;
using BusHandle = ObjectHandle<GstBus>;
using ClockHandle = ObjectHandle<GstClock>;
using ProviderHandle = ObjectHandle<GstDeviceProvider>;
using CapsHandle = MiniObjectHandle<GstCaps>;
using SampleHandle = MiniObjectHandle<GstSample>;
using BufferHandle = MiniObjectHandle<GstBuffer>;
using MessageHandle = MiniObjectHandle<GstMessage>;
using StructureHandle = std::unique_ptr<GstStructure, Release<gst_structure_free>>;
using ConverterHandle = std::unique_ptr<GstVideoConverter, Release<gst_video_converter_free>>;
using TextHandle = std::unique_ptr<char, Release<g_free>>;
using ErrorHandle = std::unique_ptr<GError, Release<g_error_free>>;

// One further reference to a borrowed object.
inline BufferHandle retain(GstBuffer *buffer)
{
    return BufferHandle(gst_buffer_ref(buffer));
}

// What an error message says; for no other message.
struct ParsedError {
    explicit ParsedError(GstMessage *message)
    {
        GError *parsed = nullptr;
        gchar *details = nullptr;
        gst_message_parse_error(message, &parsed, &details);
        error.reset(parsed);
        debug.reset(details);
    }
    ErrorHandle error;
    TextHandle debug; // null when there are no details
};

// A video frame mapped for as long as this object lives.
class MappedFrame
{
public:
    MappedFrame(const GstVideoInfo &info, GstBuffer *buffer, GstMapFlags flags)
    {
        m_mapped = agrees(info, gst_buffer_get_video_meta(buffer)) &&
                   gst_video_frame_map(&m_frame, &info, buffer, flags);
    }
    ~MappedFrame()
    {
        if (m_mapped)
            gst_video_frame_unmap(&m_frame);
    }
    MappedFrame(const MappedFrame &) = delete;
    MappedFrame &operator=(const MappedFrame &) = delete;

    bool isValid() const { return m_mapped; }
    GstVideoFrame *get() { return &m_frame; }

private:
    // A camera's frame may be of another size or format than it has told.
    static bool agrees(const GstVideoInfo &info, const GstVideoMeta *meta)
    {
        return !meta || (GST_VIDEO_INFO_FORMAT(&info) == meta->format &&
                         guint(GST_VIDEO_INFO_WIDTH(&info)) <= meta->width &&
                         guint(GST_VIDEO_INFO_HEIGHT(&info)) <= meta->height);
    }

    GstVideoFrame m_frame{};
    bool m_mapped = false;
};
