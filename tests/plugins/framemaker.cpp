#include "tests/plugins/framemaker.h"
#include "tests/plugins/jpegcoder.h"

std::unique_ptr<FrameMaker> FrameMaker::make(const DeviceSettings &camera, const GstCaps *fixedCaps)
{
    auto coder = FrameCoder::make(fixedCaps);
    const GstStructure *format = gst_caps_get_structure(fixedCaps, 0);
    int width = 0;
    int height = 0;
    if (!coder || !gst_structure_get_int(format, "width", &width) ||
        !gst_structure_get_int(format, "height", &height))
        return nullptr;
    std::unique_ptr<FrameMaker> maker(new FrameMaker(Content::make(camera), std::move(coder), width, height));
    maker->m_isJpeg = gst_structure_has_name(format, "image/jpeg");
    GstBuffer *first = maker->wholeFrame({0, 0, 1});
    if (!first)
        return nullptr;
    gst_buffer_unref(first);
    return maker;
}

FrameMaker::FrameMaker(std::unique_ptr<Content> content, std::unique_ptr<FrameCoder> coder, int width,
                       int height)
    : m_content(std::move(content)), m_coder(std::move(coder)),
      m_picture(width, height, m_coder->colorimetry())
{
}

FrameMaker::~FrameMaker()
{
    for (const auto &[variant, buffer] : m_kept)
        gst_buffer_unref(buffer);
}

GstBuffer *FrameMaker::frame(const Moment &moment, const DamagedFrames &damaged)
{
    GstBuffer *whole = wholeFrame(moment);
    const bool damage =
        moment.frame < damaged.first || (damaged.every && (moment.frame + 1) % damaged.every == 0);
    if (!whole || !m_isJpeg || !damage)
        return whole;
    GstBuffer *bad = m_damagedCount++ % 2 == 0 ? truncatedFrame(whole) : corruptedFrame(whole);
    gst_buffer_unref(whole);
    return bad;
}

GstBuffer *FrameMaker::wholeFrame(const Moment &moment)
{
    const int variant = m_content->variant(moment);
    const auto kept = m_kept.find(variant);
    // A new buffer over the same memory: time stamps differ, pixels are not copied.
    if (kept != m_kept.end())
        return gst_buffer_copy(kept->second);
    m_content->draw(&m_picture, moment);
    GstBuffer *buffer = m_coder->encode(&m_picture);
    if (variant == Content::alwaysNew || !buffer)
        return buffer;
    m_kept[variant] = buffer;
    return gst_buffer_copy(buffer);
}
