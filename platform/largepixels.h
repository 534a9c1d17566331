#pragma once

#include "util/files/largebytes.h"

#include <QImage>

#include <opencv2/core/mat.hpp>

#include <cstdint>

#include <sys/mman.h>
#include <unistd.h>

// As cv::Mat::create(), but with all of its memory pages there at once. The first picture of a camera would
// else touch thousands of them one by one, which takes longer than all the work on it. Huge pages would come
// as fast, but were measured to make every picture slower.
inline void createLarge(cv::Mat *pixels, int rows, int columns, int type)
{
    if (pixels->rows == rows && pixels->cols == columns && pixels->type() == type)
        return;
    pixels->create(rows, columns, type);
    const auto page = size_t(sysconf(_SC_PAGESIZE));
    const size_t bytes = pixels->total() * pixels->elemSize();
    const size_t toFirstPage = (page - reinterpret_cast<uintptr_t>(pixels->data) % page) % page;
    if (toFirstPage < bytes) // where the system cannot, they come one by one
        madvise(pixels->data + toFirstPage, (bytes - toFirstPage) / page * page, MADV_POPULATE_WRITE);
}

// An RGB image in memory that comes fast, not cleared; null when there is none.
inline QImage largeImage(const QSize &size)
{
    const int stride = (size.width() * 3 + 3) & ~3;
    auto *pixels = new LargeBytes(size_t(stride) * size_t(size.height()));
    if (pixels->size() == 0) {
        delete pixels;
        return {};
    }
    return QImage(
        pixels->data(), size.width(), size.height(), stride, QImage::Format_RGB888,
        [](void *memory) { delete static_cast<LargeBytes *>(memory); }, pixels);
}
