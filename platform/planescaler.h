#pragma once

#include <QSize>

#include <cstdint>

// Scales a plane of bytes. Reduced to less than half, pixels are averaged; else this is bilinear.
void scalePlane(const uint8_t *from, int fromStride, const QSize &fromSize, uint8_t *to, int toStride,
                const QSize &toSize);
