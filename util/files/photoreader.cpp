#include "util/files/photofile.h"

#include "util/files/largebytes.h"

#include <QFile>
#include <QtEndian>

#include <libdeflate.h>

#include <memory>
#include <vector>

namespace
{

// Signature, length and type of the header chunk; after it come the header itself and its check sum.
const QByteArray start("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
// 8 bits, RGB, and the methods of compression, filtering and interlacing that every photo has.
const QByteArray format("\x08\x02\x00\x00\x00", 5);
const QByteArray pixelChunk("IDAT");
const QByteArray endChunk("\0\0\0\0IEND", 8);

constexpr int sizeAt = 16;
constexpr int formatAt = 24;
constexpr int pixelLengthAt = 33;
constexpr int pixelTypeAt = 37;
constexpr int headBytes = 41; // all that stands before the pixels
constexpr int checkSumBytes = 4;
constexpr int bytesPerPixel = 3;
constexpr qint64 longestSide = 0x7fffffff; // the format's own limit

constexpr uchar leftFilter = 1;

struct DecompressorFree {
    void operator()(libdeflate_decompressor *decompressor) const
    {
        libdeflate_free_decompressor(decompressor);
    }
};
using Decompressor = std::unique_ptr<libdeflate_decompressor, DecompressorFree>;

struct Head {
    qint64 width = 0;
    qint64 height = 0;
    qint64 packedBytes = 0;

    qint64 rowBytes() const { return 1 + width * bytesPerPixel; } // the filter's number comes first
    qint64 pixels() const { return width * height; }
    // What the rows take where nothing could be compressed. More is no photo of ours, and is not read.
    qint64 mostPackedBytes() const
    {
        return qint64(libdeflate_zlib_compress_bound(nullptr, size_t(rowBytes() * height)));
    }
};

quint32 numberAt(const QByteArray &bytes, int position)
{
    return qFromBigEndian<quint32>(bytes.constData() + position);
}

bool parseHead(const QByteArray &bytes, Head &head)
{
    if (bytes.size() != headBytes || !bytes.startsWith(start) ||
        bytes.mid(formatAt, format.size()) != format ||
        bytes.mid(pixelTypeAt, pixelChunk.size()) != pixelChunk)
        return false;
    head.width = numberAt(bytes, sizeAt);
    head.height = numberAt(bytes, sizeAt + 4);
    head.packedBytes = numberAt(bytes, pixelLengthAt);
    return head.width > 0 && head.height > 0 && head.width <= longestSide && head.height <= longestSide;
}

// Of no size when that fails.
LargeBytes unpack(const QByteArray &packed, qint64 bytes)
{
    const Decompressor decompressor(libdeflate_alloc_decompressor());
    LargeBytes rows{size_t(bytes)};
    // Without a place for the number of bytes, anything but exactly as many is an error.
    if (!decompressor || rows.size() == 0 ||
        libdeflate_zlib_decompress(decompressor.get(), packed.constData(), size_t(packed.size()), rows.data(),
                                   rows.size(), nullptr) != LIBDEFLATE_SUCCESS)
        return LargeBytes(0);
    return rows;
}

// Makes pixels of a row in which each stands as its difference from the one to its left.
void sumRow(uchar *pixels, const uchar *difference, qint64 bytes)
{
    uchar left[bytesPerPixel] = {};
    for (qint64 i = 0; i < bytes; i += bytesPerPixel) {
        for (int colour = 0; colour < bytesPerPixel; ++colour)
            pixels[i + colour] = left[colour] = uchar(left[colour] + difference[i + colour]);
    }
}

// Reads a byte more than the pixels have.
void widenRow(QRgb *wide, const uchar *pixels, qint64 width)
{
    constexpr QRgb opaque = 0xff000000;
    for (qint64 x = 0; x < width; ++x, pixels += bytesPerPixel)
        wide[x] = opaque | qFromBigEndian<quint32>(pixels) >> 8;
}

// Null when there is no memory for it.
QImage makeImage(const Head &head)
{
    const int width = int(head.width);
    const int lineBytes = width * int(sizeof(QRgb));
    auto memory = std::make_unique<LargeBytes>(size_t(lineBytes) * size_t(head.height));
    if (memory->size() == 0)
        return {};
    const auto release = [](void *held) { delete static_cast<LargeBytes *>(held); };
    uchar *pixels = memory->data();
    return {pixels, width, int(head.height), lineBytes, QImage::Format_RGB32, release, memory.release()};
}

QImage unfilter(const LargeBytes &rows, const Head &head)
{
    QImage image = makeImage(head);
    if (image.isNull())
        return {};
    const qint64 bytes = head.width * bytesPerPixel;
    std::vector<uchar> pixels(size_t(bytes) + 1, 0); // of one row
    const uchar *filtered = rows.data();
    for (int y = 0; y < head.height; ++y, filtered += head.rowBytes()) {
        if (*filtered != leftFilter)
            return {};
        sumRow(pixels.data(), filtered + 1, bytes);
        widenRow(reinterpret_cast<QRgb *>(image.scanLine(y)), pixels.data(), head.width);
    }
    return image;
}

} // namespace

QImage decodePhoto(const QString &path, qint64 pixelBudget)
{
    QFile file(path);
    Head head;
    if (!file.open(QIODevice::ReadOnly) || !parseHead(file.read(headBytes), head))
        return {};
    if (head.pixels() > pixelBudget || head.packedBytes > head.mostPackedBytes())
        return {};
    const QByteArray packed = file.read(head.packedBytes);
    if (packed.size() != head.packedBytes || !file.read(checkSumBytes + endChunk.size()).endsWith(endChunk))
        return {};
    const LargeBytes rows = unpack(packed, head.rowBytes() * head.height);
    return rows.size() == 0 ? QImage() : unfilter(rows, head);
}
