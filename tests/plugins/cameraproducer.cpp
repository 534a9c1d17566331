#include "tests/plugins/producer.h"

#include <gst/app/gstappsink.h>
#include <gst/app/gstappsrc.h>
#include <gst/video/video.h>

namespace
{

// No frame takes longer; a broken encoder must not hang a test.
constexpr GstClockTime encodeLimit = 2 * GST_SECOND;

constexpr double truncatedPart = 0.6;
constexpr gsize corruptedBytes = 200;

// Of a JPEG, as jpegenc writes it.
constexpr gsize versionAt = 11;
constexpr gsize endMarkerBytes = 2;

std::string encoderFor(const GstStructure *format)
{
    if (gst_structure_has_name(format, "image/jpeg"))
        return "videoconvert ! video/x-raw,format=Y42B ! jpegenc"; // as USB cameras send it
    if (gst_structure_has_name(format, "video/x-h264"))
        return "videoconvert ! video/x-raw,format=I420 ! x264enc tune=zerolatency speed-preset=ultrafast "
               "key-int-max=1 ! h264parse config-interval=-1";
    return "videoconvert";
}

// What some cameras send with every frame, and no pixel is lost by: a version that there is not, and filling
// before the end. Transfer full of both.
GstBuffer *withOddities(GstBuffer *jpeg)
{
    constexpr guint8 otherVersion = 2;
    constexpr gsize filling = 32;
    const gsize end = gst_buffer_get_size(jpeg) - endMarkerBytes;
    GstBuffer *odd = gst_buffer_new_allocate(nullptr, end + filling + endMarkerBytes, nullptr);
    GstMapInfo from;
    gst_buffer_map(jpeg, &from, GST_MAP_READ);
    gst_buffer_fill(odd, 0, from.data, end);
    gst_buffer_memset(odd, versionAt, otherVersion, 1);
    gst_buffer_memset(odd, end, 0, filling);
    gst_buffer_fill(odd, end + filling, from.data + end, endMarkerBytes);
    gst_buffer_unmap(jpeg, &from);
    gst_buffer_unref(jpeg);
    return odd;
}

class CameraProducer : public Producer
{
public:
    CameraProducer(std::string content, bool isJpeg, GstElement *pipeline, int width, int height)
        : m_content(std::move(content)), m_isJpeg(isJpeg), m_pipeline(pipeline),
          m_in(gst_bin_get_by_name(GST_BIN(pipeline), "in")),
          m_out(gst_bin_get_by_name(GST_BIN(pipeline), "out")),
          m_picture({width, height, std::vector<uint32_t>(size_t(width) * height)})
    {
        gst_element_set_state(m_pipeline, GST_STATE_PLAYING);
        // Drawing a page takes longer than a frame may: all is ready when the camera runs.
        for (int64_t frame = 0; frame < noiseVariants; ++frame)
            gst_buffer_unref(whole({frame, 0, 1}));
    }
    ~CameraProducer() override
    {
        gst_element_set_state(m_pipeline, GST_STATE_NULL);
        for (const auto &[variant, buffer] : m_kept)
            gst_buffer_unref(buffer);
        gst_object_unref(m_in);
        gst_object_unref(m_out);
        gst_object_unref(m_pipeline);
    }
    CameraProducer(const CameraProducer &) = delete;
    CameraProducer &operator=(const CameraProducer &) = delete;

    GstBuffer *make(const Moment &moment, const DeviceSettings &device) override
    {
        GstBuffer *frame = whole(moment);
        if (const int padding = std::stoi(device.value("padding", "0")))
            frame = padded(frame, padding);
        const int every = std::stoi(device.value("damaged", "0"));
        if (m_isJpeg && device.value("oddities") == "yes")
            frame = withOddities(frame);
        if (!every || moment.frame % every)
            return frame;
        if (!m_isJpeg) {
            GST_BUFFER_FLAG_SET(frame, GST_BUFFER_FLAG_CORRUPTED);
            return frame;
        }
        const gsize size = gst_buffer_get_size(frame);
        if (device.value("damage") == "no-end") {
            gst_buffer_resize(frame, 0, gssize(size - endMarkerBytes));
            return frame;
        }
        GstBuffer *bad = ++m_damagedCount % 2 ? gst_buffer_copy_region(frame, GST_BUFFER_COPY_ALL, 0,
                                                                       gsize(double(size) * truncatedPart))
                                              : gst_buffer_copy_deep(frame);
        // Bytes that no picture has: a marker that ends nothing, over and over.
        if (m_damagedCount % 2 == 0)
            gst_buffer_memset(bad, size / 2, 0xff, MIN(corruptedBytes, size / 4));
        gst_buffer_unref(frame);
        return bad;
    }

private:
    GstBuffer *whole(const Moment &moment)
    {
        const int variant = pictureVariant(m_content, moment);
        const auto kept = m_kept.find(variant);
        // A new buffer over the same memory: time stamps differ, pixels are not copied.
        if (kept != m_kept.end())
            return gst_buffer_copy(kept->second);
        drawPicture(m_content, moment, &m_picture);
        GstBuffer *encoded = encode();
        if (variant == alwaysNew)
            return encoded;
        m_kept[variant] = encoded;
        return gst_buffer_copy(encoded);
    }
    // With rows that take more bytes than they need. Transfer full of both.
    GstBuffer *padded(GstBuffer *tight, int padding)
    {
        GstVideoInfo from;
        GstCaps *caps = gst_pad_get_current_caps(GST_BASE_SINK_PAD(m_out));
        gst_video_info_from_caps(&from, caps);
        gst_caps_unref(caps);
        GstVideoInfo to = from;
        GstVideoAlignment alignment;
        gst_video_alignment_reset(&alignment);
        alignment.padding_right = guint(padding);
        alignment.padding_bottom = 2;
        gst_video_info_align(&to, &alignment);
        GstBuffer *wide = gst_buffer_new_allocate(nullptr, to.size, nullptr);
        gst_buffer_add_video_meta_full(wide, GST_VIDEO_FRAME_FLAG_NONE, GST_VIDEO_INFO_FORMAT(&to),
                                       guint(to.width), guint(to.height), GST_VIDEO_INFO_N_PLANES(&to),
                                       to.offset, to.stride);
        GstVideoFrame source;
        GstVideoFrame target;
        gst_video_frame_map(&source, &from, tight, GST_MAP_READ);
        gst_video_frame_map(&target, &to, wide, GST_MAP_WRITE);
        gst_video_frame_copy(&target, &source);
        gst_video_frame_unmap(&target);
        gst_video_frame_unmap(&source);
        gst_buffer_unref(tight);
        return wide;
    }
    GstBuffer *encode()
    {
        // Nothing reads the picture any more once its frame has come out.
        const gsize size = m_picture.pixels.size() * sizeof(uint32_t);
        GstBuffer *drawn = gst_buffer_new_wrapped_full(GST_MEMORY_FLAG_READONLY, m_picture.pixels.data(),
                                                       size, 0, size, nullptr, nullptr);
        GST_BUFFER_PTS(drawn) = GstClockTime(m_encodedCount++) * GST_SECOND;
        gst_app_src_push_buffer(GST_APP_SRC(m_in), drawn);
        GstSample *sample = gst_app_sink_try_pull_sample(GST_APP_SINK(m_out), encodeLimit);
        g_assert(sample);
        GstBuffer *encoded = gst_buffer_copy(gst_sample_get_buffer(sample));
        gst_sample_unref(sample);
        return encoded;
    }

    const std::string m_content;
    const bool m_isJpeg;
    GstElement *m_pipeline; // owned, as the next two
    GstElement *m_in;
    GstElement *m_out;
    Picture m_picture;
    std::map<int, GstBuffer *> m_kept; // owned, by variant
    int m_encodedCount = 0;
    int m_damagedCount = 0;
};

} // namespace

std::unique_ptr<Producer> Producer::ofCamera(const DeviceSettings &device, const GstCaps *fixed)
{
    const GstStructure *format = gst_caps_get_structure(fixed, 0);
    int width = 0;
    int height = 0;
    int rate = 0;
    int denominator = 1;
    gst_structure_get_fraction(format, "framerate", &rate, &denominator);
    if (!gst_structure_get_int(format, "width", &width) || !gst_structure_get_int(format, "height", &height))
        return nullptr;
    char *caps = gst_caps_to_string(fixed);
    const std::string description =
        "appsrc name=in format=time caps=\"video/x-raw,format=BGRx,width=" + std::to_string(width) +
        ",height=" + std::to_string(height) + ",framerate=" + std::to_string(rate) + "/" +
        std::to_string(denominator) +
        (gst_structure_has_field(format, "interlace-mode") ? ",interlace-mode=interleaved" : "") + "\" ! " +
        encoderFor(format) + " ! " + caps + " ! appsink name=out sync=false";
    g_free(caps);
    GstElement *pipeline = gst_parse_launch(description.c_str(), nullptr);
    if (!pipeline)
        return nullptr;
    return std::make_unique<CameraProducer>(device.value("content", "page"),
                                            gst_structure_has_name(format, "image/jpeg"), pipeline, width,
                                            height);
}
