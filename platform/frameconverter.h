#pragma once

#include "platform/gsthandles.h"

#include <QRect>

// Converts pictures between pixel formats and sizes with GStreamer's converter, which it keeps for as long
// as the kind of conversion stays the same. For one thread at a time.
class FrameConverter
{
public:
    explicit FrameConverter(GstVideoResamplerMethod method) : m_method(method) {}

    // Fills the whole of `target` with the part of `source`. False when a frame cannot be mapped or the
    // formats cannot be converted.
    bool convert(const GstVideoInfo &sourceInfo, GstBuffer *source, const QRect &part,
                 const GstVideoInfo &targetInfo, GstBuffer *target);

private:
    bool prepare(const GstVideoInfo &sourceInfo, const QRect &part, const GstVideoInfo &targetInfo);

    const GstVideoResamplerMethod m_method;
    ConverterHandle m_converter;
    GstVideoInfo m_sourceInfo{};
    GstVideoInfo m_targetInfo{};
    QRect m_part;
};

// The description of a picture of that format and size without padding beyond GStreamer's own.
GstVideoInfo pictureInfo(GstVideoFormat format, const QSize &size);

// The pixels in a buffer, which does not own them.
BufferHandle wrapPixels(uint8_t *pixels, size_t bytes);
