#pragma once

#include <opencv2/core/mat.hpp>

#include <cstdint>

#include <sys/mman.h>

// As cv::Mat::create(), but in huge pages where the system has them. The first picture of a camera touches
// thousands of small ones, which takes longer than all the work on it.
inline void createLarge(cv::Mat *pixels, int rows, int columns, int type)
{
    if (pixels->rows == rows && pixels->cols == columns && pixels->type() == type)
        return;
    pixels->create(rows, columns, type);
    constexpr uintptr_t hugePage = uintptr_t{2} << 20;
    const auto start = reinterpret_cast<uintptr_t>(pixels->data);
    const uintptr_t first = (start + hugePage - 1) / hugePage * hugePage;
    const uintptr_t last = (start + pixels->total() * pixels->elemSize()) / hugePage * hugePage;
    if (first < last)
        madvise(reinterpret_cast<void *>(first), last - first, MADV_HUGEPAGE); // refused, small ones do
}
