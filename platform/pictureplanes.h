#pragma once

#include "platform/gsthandles.h"

#include <QRect>
#include <QSize>

#include <opencv2/core/mat.hpp>

#include <cstdint>
#include <optional>

// A picture as three planes of bytes: brightness and two of colour, which may be smaller. Borrowed.
struct PicturePlanes {
    const uint8_t *data[3] = {};
    int stride[3] = {};
    QSize size;
    QSize colourSize;
    GstVideoColorimetry colours{};

    QSize sizeOf(int plane) const { return plane == 0 ? size : colourSize; }
};

// The part of the picture, which starts on even pixels and, but at the picture's edges, ends on them.
PicturePlanes cropped(const PicturePlanes &planes, const QRect &part);

// Three planes of memory, used again and again.
class PlaneMemory
{
public:
    // Fresh ones, whose rows take so many bytes; what was in them is lost.
    void create(const QSize &first, const QSize &others);
    uint8_t *row(int plane, int row) { return m_planes[plane].ptr(row); }
    // What is in them, of that size; it stays in here.
    PicturePlanes planes(const QSize &size, const QSize &colourSize,
                         const GstVideoColorimetry &colours) const;

private:
    cv::Mat m_planes[3];
};

// Takes the part of a raw picture apart, packed formats into the memory. Nothing for pictures that are no
// planes of brightness and colour.
std::optional<PicturePlanes> planesOf(GstVideoFrame *frame, const QRect &part, PlaneMemory *memory);

// Takes a whole raw picture apart straight into one of its size, which spares a copy. False for one that is
// not packed, or of another size.
bool unpackInto(GstVideoFrame *i420, GstVideoFrame *frame);

// The planes at these sizes. Those that have their size already stay what they are.
PicturePlanes scaled(const PicturePlanes &planes, const QSize &size, const QSize &colourSize,
                     PlaneMemory *memory);

// Half of each side, as a picture's colour mostly has it.
inline QSize halved(const QSize &size)
{
    return {(size.width() + 1) / 2, (size.height() + 1) / 2};
}
