#include "platform/planescaler.h"

#include <libyuv.h>

#ifdef __x86_64__

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include <tmmintrin.h>

namespace
{

// Where a pixel of a scaled row or column lies between two of the source.
struct Place {
    int first;
    double beyond; // the share of the next one
};

Place placeOf(int index, int from, int to)
{
    const double position = std::clamp((index + 0.5) * from / to - 0.5, 0.0, double(from - 1));
    const int first = std::min(int(position), std::max(0, from - 2));
    return {first, position - first};
}

// libyuv scales planes two pixels at a time, which takes longer than everything else on the way of a raw
// frame to the screen. Eight at a time are found in sixteen bytes of the row, as long as it is not reduced by
// more than this.
constexpr int atOnce = 8;
constexpr double mostReduced = 15.0 / atOnce;
constexpr int bytesRead = 16;
constexpr int shares = 64;

// Eight pixels of a scaled row: where in the source they begin, and for each one its two neighbours and their
// shares.
struct Group {
    alignas(bytesRead) uint8_t order[bytesRead];
    alignas(bytesRead) int8_t weights[bytesRead];
    int start;
};

std::vector<Group> groupsFor(int from, int to)
{
    std::vector<Group> groups(size_t((to + atOnce - 1) / atOnce));
    for (int i = 0; i < int(groups.size()) * atOnce; ++i) {
        Group &group = groups[size_t(i / atOnce)];
        const Place place = placeOf(std::min(i, to - 1), from, to);
        const int at = i % atOnce * 2;
        if (at == 0)
            group.start = place.first;
        const int beyond = int(std::lround(place.beyond * shares));
        group.order[at] = static_cast<uint8_t>(place.first - group.start);
        group.order[at + 1] = static_cast<uint8_t>(place.first - group.start + 1);
        group.weights[at] = static_cast<int8_t>(shares - beyond);
        group.weights[at + 1] = static_cast<int8_t>(beyond);
    }
    return groups;
}

// The row may be read, and the scaled one be written, up to a group beyond its end.
__attribute__((target("ssse3"))) void scaleRow(const uint8_t *row, const std::vector<Group> &groups,
                                               uint8_t *scaled)
{
    const __m128i half = _mm_set1_epi16(shares / 2);
    for (const Group &group : groups) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i *>(row + group.start));
        const __m128i order = _mm_load_si128(reinterpret_cast<const __m128i *>(group.order));
        const __m128i weights = _mm_load_si128(reinterpret_cast<const __m128i *>(group.weights));
        const __m128i sums = _mm_maddubs_epi16(_mm_shuffle_epi8(bytes, order), weights);
        const __m128i pixels = _mm_srli_epi16(_mm_add_epi16(sums, half), 6);
        _mm_storel_epi64(reinterpret_cast<__m128i *>(scaled), _mm_packus_epi16(pixels, pixels));
        scaled += atOnce;
    }
}

bool canScaleRows(const QSize &from, const QSize &to)
{
    return __builtin_cpu_supports("ssse3") && from.width() != to.width() && from.width() > 1 &&
           from.width() <= mostReduced * to.width() && from.height() <= 2 * to.height();
}

// The row of the source that lies at this place of a column.
void mixRows(const uint8_t *from, int stride, int width, const Place &place, uint8_t *row)
{
    const uint8_t *first = from + ptrdiff_t(place.first) * stride;
    const int beyond = int(std::lround(place.beyond * 256));
    libyuv::InterpolatePlane(first, 0, beyond ? first + stride : first, 0, row, 0, width, 1,
                             std::min(beyond, 255));
}

void scaleRows(const uint8_t *from, int fromStride, const QSize &fromSize, uint8_t *to, int toStride,
               const QSize &toSize)
{
    const std::vector<Group> groups = groupsFor(fromSize.width(), toSize.width());
    std::vector<uint8_t> mixed(size_t(fromSize.width() + bytesRead));
    std::vector<uint8_t> scaled(size_t(toSize.width() + atOnce));
    for (int y = 0; y < toSize.height(); ++y) {
        const Place place = placeOf(y, fromSize.height(), toSize.height());
        mixRows(from, fromStride, fromSize.width(), place, mixed.data());
        scaleRow(mixed.data(), groups, scaled.data());
        memcpy(to + ptrdiff_t(y) * toStride, scaled.data(), size_t(toSize.width()));
    }
}

} // namespace

#endif

void scalePlane(const uint8_t *from, int fromStride, const QSize &fromSize, uint8_t *to, int toStride,
                const QSize &toSize)
{
#ifdef __x86_64__
    if (canScaleRows(fromSize, toSize)) {
        scaleRows(from, fromStride, fromSize, to, toStride, toSize);
        return;
    }
#endif
    libyuv::ScalePlane(from, fromStride, fromSize.width(), fromSize.height(), to, toStride, toSize.width(),
                       toSize.height(), libyuv::kFilterBox);
}
