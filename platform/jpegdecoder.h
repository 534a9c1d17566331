#pragma once

#include "platform/pictureplanes.h"

#include <QImage>

// Decodes a camera's JPEG pictures. They may be damaged: cameras lose parts of pictures on the way often, and
// libjpeg fills the gaps with grey without calling it an error.
namespace JpegDecoder
{

// The size of the picture; empty when there is none, or when it claims to be far larger than the camera
// announced, as a damaged one may.
QSize sizeOf(GstBuffer *jpeg, const QSize &announced);

// The planes of the picture at a half, a quarter or an eighth of its size, or of the whole: denominator 2, 4,
// 8 or 1. The more it is reduced, the less it costs. Kept in the memory. Nothing when some of its pixels are
// made up, when it does not consist of brightness and colour, or when it has no size as above.
std::optional<PicturePlanes> decode(GstBuffer *jpeg, const QSize &announced, int denominator,
                                    PlaneMemory *memory);

// Fills the image, which is of the picture's size and Format_RGB888, with all of the picture's colour. False
// when some of its pixels are made up; rows that cannot be read at all are black.
bool decodeRgb(GstBuffer *jpeg, QImage *image);

} // namespace JpegDecoder
