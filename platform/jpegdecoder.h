#pragma once

#include "platform/pictureplanes.h"

#include <QImage>

// Decodes a camera's JPEG pictures. They may be damaged: cameras lose parts of pictures on the way often, and
// libjpeg fills the gaps with grey without calling it an error.
namespace JpegDecoder
{

// The planes of the picture at a half, a quarter or an eighth of its size, or of the whole: denominator 2, 4,
// 8 or 1. The more it is reduced, the less it costs. Kept in the memory. Nothing when some of its pixels are
// made up, when it does not consist of brightness and colour, or when it claims to be far larger than the
// camera announced, as a damaged one may.
std::optional<PicturePlanes> decode(GstBuffer *jpeg, const QSize &announced, int denominator,
                                    PlaneMemory *memory);

// The picture with all of its colour, Format_RGB888, and whether none of its pixels are made up; rows that
// cannot be read at all are black. Null when there is none, or one far too large.
QImage decodeRgb(GstBuffer *jpeg, const QSize &announced, bool *isWhole);

} // namespace JpegDecoder
