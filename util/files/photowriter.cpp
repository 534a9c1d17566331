#include "util/files/photofile.h"

#include "util/files/largebytes.h"
#include "util/files/wholefile.h"

#include <isa-l/igzip_lib.h>
#include <libdeflate.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace
{

// The picture of a camera is mostly noise, which takes many times longer to be packed a few per cent better.
// At this level ISA-L takes three fifths of the time of libdeflate's lowest, for a file a twentieth larger.
constexpr int compressionLevel = 2;
constexpr int levelBytes = ISAL_DEF_LVL2_DEFAULT;

constexpr std::string_view signature("\x89PNG\r\n\x1a\n", 8);
constexpr unsigned char leftFilter = 1;
constexpr size_t bytesPerPixel = 3;

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

// Each pixel as its difference from the one to its left: cheap, and what a page leaves is mostly small
// numbers. Of most cameras' pictures two neighbours in a row have the colour of one, which two rows have not.
LargeBytes filterLeft(const QImage &picture)
{
    const size_t rowBytes = size_t(picture.width()) * bytesPerPixel;
    LargeBytes filtered((rowBytes + 1) * size_t(picture.height()));
    if (filtered.size() == 0)
        return filtered;
    unsigned char *out = filtered.data();
    for (int row = 0; row < picture.height(); ++row) {
        const unsigned char *pixels = picture.constScanLine(row);
        *out++ = leftFilter;
        std::copy_n(pixels, bytesPerPixel, out);
        for (size_t i = bytesPerPixel; i < rowBytes; ++i)
            out[i] = static_cast<unsigned char>(pixels[i] - pixels[i - bytesPerPixel]);
        out += rowBytes;
    }
    return filtered;
}

// Of no size when there is no memory for the work, or no input.
LargeBytes compress(LargeBytes bytes)
{
    // What is read back is held to the same bound.
    LargeBytes packed(libdeflate_zlib_compress_bound(nullptr, bytes.size()));
    std::vector<uint8_t> level(levelBytes);
    isal_zstream stream{};
    isal_deflate_init(&stream);
    stream.gzip_flag = IGZIP_ZLIB;
    stream.level = compressionLevel;
    stream.level_buf = level.data();
    stream.level_buf_size = levelBytes;
    stream.end_of_stream = 1;
    stream.next_in = bytes.data();
    stream.avail_in = uint32_t(bytes.size());
    stream.next_out = packed.data();
    stream.avail_out = uint32_t(packed.size());
    const bool isPacked = bytes.size() > 0 && packed.size() > 0 && isal_deflate(&stream) == COMP_OK &&
                          stream.internal_state.state == ZSTATE_END;
    packed.truncate(isPacked ? stream.total_out : 0);
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
    const LargeBytes packed = compress(filterLeft(picture));
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
