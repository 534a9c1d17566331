#include "util/files/photofile.h"

#include "util/files/largebytes.h"
#include "util/files/wholefile.h"

#include <libdeflate.h>

#include <cerrno>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace
{

// The picture of a camera is mostly noise, which no higher level packs better: level 9 saves a few
// per cent for many times the time.
constexpr int compressionLevel = 1;

constexpr std::string_view signature("\x89PNG\r\n\x1a\n", 8);
constexpr unsigned char upFilter = 2;

struct CompressorFree {
    void operator()(libdeflate_compressor *compressor) const { libdeflate_free_compressor(compressor); }
};
using Compressor = std::unique_ptr<libdeflate_compressor, CompressorFree>;

void appendNumber(std::string &bytes, uint32_t number)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(char(number >> shift & 0xff));
}

std::string_view asText(const unsigned char *data, size_t bytes)
{
    return {reinterpret_cast<const char *>(data), bytes};
}

// The bytes before and after a chunk's data.
struct Chunk {
    Chunk(std::string_view type, std::string_view data)
    {
        appendNumber(head, uint32_t(data.size()));
        head += type;
        uint32_t sum = libdeflate_crc32(0, type.data(), type.size());
        // For no data at all libdeflate would give the sum to start with.
        if (!data.empty())
            sum = libdeflate_crc32(sum, data.data(), data.size());
        appendNumber(tail, sum);
    }
    std::string head;
    std::string tail;
};

std::string imageHeader(const QSize &size)
{
    std::string header;
    appendNumber(header, uint32_t(size.width()));
    appendNumber(header, uint32_t(size.height()));
    // 8 bits a channel, RGB, and the only methods that there are of compression, filtering, no interlacing.
    header += std::string("\x08\x02\x00\x00\x00", 5);
    return header;
}

// Each row as its difference from the row above: cheap, and what a page leaves is mostly small numbers.
LargeBytes filterUp(const QImage &picture)
{
    const size_t rowBytes = size_t(picture.width()) * 3;
    const std::vector<unsigned char> blackRow(rowBytes, 0);
    LargeBytes filtered((rowBytes + 1) * size_t(picture.height()));
    if (filtered.size() == 0)
        return filtered;
    unsigned char *out = filtered.data();
    const unsigned char *above = blackRow.data();
    for (int row = 0; row < picture.height(); ++row) {
        const unsigned char *current = picture.constScanLine(row);
        *out++ = upFilter;
        for (size_t i = 0; i < rowBytes; ++i)
            out[i] = static_cast<unsigned char>(current[i] - above[i]);
        out += rowBytes;
        above = current;
    }
    return filtered;
}

// Of no size when there is no memory for the work, or no input.
LargeBytes compress(const LargeBytes &bytes)
{
    const Compressor compressor(libdeflate_alloc_compressor(compressionLevel));
    if (!compressor || bytes.size() == 0)
        return LargeBytes(0);
    LargeBytes packed(libdeflate_zlib_compress_bound(compressor.get(), bytes.size()));
    packed.truncate(
        libdeflate_zlib_compress(compressor.get(), bytes.data(), bytes.size(), packed.data(), packed.size()));
    return packed;
}

// 0, or the error number.
int writeWholeFile(const QString &path, std::initializer_list<std::string_view> parts)
{
    WholeFile file(path, 0666);
    if (file.descriptor() < 0)
        return errno;
    for (const std::string_view part : parts) {
        if (!file.append(part.data(), part.size()))
            return errno;
    }
    return file.publish() ? 0 : errno;
}

} // namespace

int writePhoto(const QString &path, const QImage &picture)
{
    if (picture.isNull() || picture.format() != QImage::Format_RGB888)
        return EINVAL;
    const LargeBytes packed = compress(filterUp(picture));
    if (packed.size() == 0)
        return ENOMEM;
    const std::string header = imageHeader(picture.size());
    const std::string_view pixels = asText(packed.data(), packed.size());
    const Chunk headerChunk("IHDR", header);
    const Chunk pixelChunk("IDAT", pixels);
    const Chunk endChunk("IEND", {});
    return writeWholeFile(path, {signature, headerChunk.head, header, headerChunk.tail, pixelChunk.head,
                                 pixels, pixelChunk.tail, endChunk.head, endChunk.tail});
}
