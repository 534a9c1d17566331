#include "widgets/photodecoder.h"

#include <QFile>
#include <QtEndian>

#include <libdeflate.h>

#include <cstring>
#include <memory>

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

enum Filter : uchar { NoFilter = 0, UpFilter = 2 };

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

QByteArray unpack(const QByteArray &packed, qint64 bytes)
{
    const Decompressor decompressor(libdeflate_alloc_decompressor());
    QByteArray rows(int(bytes), Qt::Uninitialized);
    // Without a place for the number of bytes, anything but exactly as many is an error.
    if (!decompressor ||
        libdeflate_zlib_decompress(decompressor.get(), packed.constData(), size_t(packed.size()), rows.data(),
                                   size_t(rows.size()), nullptr) != LIBDEFLATE_SUCCESS)
        return {};
    return rows;
}

void addRow(uchar *row, const uchar *difference, const uchar *above, qint64 bytes)
{
    for (qint64 i = 0; i < bytes; ++i)
        row[i] = uchar(difference[i] + above[i]);
}

QImage unfilter(const QByteArray &rows, const Head &head)
{
    QImage image(int(head.width), int(head.height), QImage::Format_RGB888);
    if (image.isNull())
        return {};
    const qint64 bytes = head.width * bytesPerPixel;
    const QByteArray blackRow(int(bytes), 0);
    const auto *above = reinterpret_cast<const uchar *>(blackRow.constData());
    const auto *filtered = reinterpret_cast<const uchar *>(rows.constData());
    for (int y = 0; y < head.height; ++y, filtered += head.rowBytes()) {
        uchar *row = image.scanLine(y);
        if (*filtered == UpFilter)
            addRow(row, filtered + 1, above, bytes);
        else if (*filtered == NoFilter)
            std::memcpy(row, filtered + 1, size_t(bytes));
        else
            return {};
        above = row;
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
    const QByteArray rows = unpack(packed, head.rowBytes() * head.height);
    return rows.isEmpty() ? QImage() : unfilter(rows, head);
}
