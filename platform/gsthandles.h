#pragma once

#include <gst/gst.h>
#include <gst/video/video.h>

#include <memory>

// Owning handles of GStreamer's reference-counted objects: one reference each, given back when the handle
// goes. A function that takes a handle by value takes the reference over; a raw pointer is only borrowed.

struct GstObjectRelease {
    void operator()(void *object) const { gst_object_unref(object); }
};
struct GstMiniObjectRelease {
    template<typename T> void operator()(T *object) const
    {
        gst_mini_object_unref(GST_MINI_OBJECT_CAST(object));
    }
};
struct GFree {
    void operator()(void *memory) const { g_free(memory); }
};
struct GstBufferPoolRelease {
    void operator()(GstBufferPool *pool) const
    {
        gst_buffer_pool_set_active(pool, FALSE);
        gst_object_unref(pool);
    }
};
struct GErrorFree {
    void operator()(GError *error) const { g_error_free(error); }
};
struct GstVideoConverterFree {
    void operator()(GstVideoConverter *converter) const { gst_video_converter_free(converter); }
};
struct GstStructureFree {
    void operator()(GstStructure *structure) const { gst_structure_free(structure); }
};

using ElementHandle = std::unique_ptr<GstElement, GstObjectRelease>;
using PadHandle = std::unique_ptr<GstPad, GstObjectRelease>;
using BufferPoolHandle = std::unique_ptr<GstBufferPool, GstBufferPoolRelease>;
using BusHandle = std::unique_ptr<GstBus, GstObjectRelease>;
using ClockHandle = std::unique_ptr<GstClock, GstObjectRelease>;
using ProviderHandle = std::unique_ptr<GstDeviceProvider, GstObjectRelease>;
using CapsHandle = std::unique_ptr<GstCaps, GstMiniObjectRelease>;
using SampleHandle = std::unique_ptr<GstSample, GstMiniObjectRelease>;
using BufferHandle = std::unique_ptr<GstBuffer, GstMiniObjectRelease>;
using MessageHandle = std::unique_ptr<GstMessage, GstMiniObjectRelease>;
using StructureHandle = std::unique_ptr<GstStructure, GstStructureFree>;
using ConverterHandle = std::unique_ptr<GstVideoConverter, GstVideoConverterFree>;
using TextHandle = std::unique_ptr<char, GFree>;
using ErrorHandle = std::unique_ptr<GError, GErrorFree>;

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
