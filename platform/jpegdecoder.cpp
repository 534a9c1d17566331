#include "platform/jpegdecoder.h"

#include "platform/largepixels.h"

#include <array>
#include <cstdio>
#include <cstring>

#include <jerror.h>
#include <jpeglib.h>

#include <csetjmp>

namespace
{

constexpr uint8_t noColour = 128;

// Cameras fill up with a few bytes of their own. More than that were a part of the picture, whose beginning
// was lost.
constexpr int mostFilling = 64;

// What libjpeg allows.
constexpr int mostRowsAtOnce = MAX_SAMP_FACTOR * DCTSIZE;

// libjpeg leaves a picture that it cannot read by calling error_exit, which must not return.
struct ErrorManager {
    jpeg_error_mgr base;
    std::jmp_buf giveUp;
};

[[noreturn]] void leave(j_common_ptr info)
{
    std::longjmp(reinterpret_cast<ErrorManager *>(info->err)->giveUp, 1);
}

// Other warnings lose no pixel: a camera may leave out the end marker, or name an odd version.
bool losesPixels(const jpeg_error_mgr &errors)
{
    switch (errors.msg_code) {
    case JWRN_HIT_MARKER:
    case JWRN_HUFF_BAD_CODE:
    case JWRN_MUST_RESYNC:
        return true;
    case JWRN_EXTRANEOUS_DATA:
        return errors.msg_parm.i[0] > mostFilling;
    default:
        return false;
    }
}

// Counts as libjpeg does, without its words on stderr.
void countWarning(j_common_ptr info, int level)
{
    if (level < 0 && losesPixels(*info->err))
        ++info->err->num_warnings;
}

// One picture while it is read.
class Reading
{
public:
    explicit Reading(GstBuffer *buffer) : m_buffer(buffer)
    {
        m_isMapped = gst_buffer_map(buffer, &m_data, GST_MAP_READ);
        m_jpeg.err = jpeg_std_error(&m_errors.base);
        m_errors.base.error_exit = leave;
        m_errors.base.emit_message = countWarning;
    }
    ~Reading()
    {
        jpeg_destroy_decompress(&m_jpeg);
        if (m_isMapped)
            gst_buffer_unmap(m_buffer, &m_data);
    }
    Reading(const Reading &) = delete;
    Reading &operator=(const Reading &) = delete;

    // False when libjpeg gave the work up. Nothing in it may have a destructor, which would be jumped over.
    template<typename Work> bool attempt(Work work)
    {
        // NOLINTNEXTLINE(bugprone-*,cert-err52-cpp): libjpeg knows no other way out.
        if (!m_isMapped || setjmp(m_errors.giveUp) != 0)
            return false;
        work(&m_jpeg);
        return true;
    }
    bool readHeader()
    {
        return attempt([this](jpeg_decompress_struct *jpeg) {
            jpeg_create_decompress(jpeg);
            jpeg_mem_src(jpeg, m_data.data, static_cast<unsigned long>(m_data.size));
            jpeg_read_header(jpeg, TRUE);
        });
    }
    const jpeg_decompress_struct &jpeg() const { return m_jpeg; }
    bool isWhole() const { return m_errors.base.num_warnings == 0; }
    QSize size() const { return {int(m_jpeg.image_width), int(m_jpeg.image_height)}; }

private:
    GstBuffer *m_buffer; // not owned
    GstMapInfo m_data{};
    bool m_isMapped = false;
    // Zeroed, since an error can come before libjpeg has made it its own.
    jpeg_decompress_struct m_jpeg{};
    ErrorManager m_errors{};
};

// Some cameras fill their pictures up to whole blocks.
bool isCredible(const QSize &size, const QSize &announced)
{
    const auto area = [](const QSize &of) { return qint64(of.width()) * of.height(); };
    return area(size) <= 2 * area(announced);
}

bool hasColour(const jpeg_decompress_struct &jpeg)
{
    return jpeg.jpeg_color_space == JCS_YCbCr && jpeg.num_components == 3;
}

// Brightness alone, or with two colours that have no more pixels.
bool isReadAsPlanes(const jpeg_decompress_struct &jpeg)
{
    if (jpeg.jpeg_color_space == JCS_GRAYSCALE)
        return true;
    return hasColour(jpeg) && jpeg.comp_info[0].h_samp_factor == jpeg.max_h_samp_factor &&
           jpeg.comp_info[0].v_samp_factor == jpeg.max_v_samp_factor &&
           jpeg.comp_info[1].h_samp_factor == jpeg.comp_info[2].h_samp_factor &&
           jpeg.comp_info[1].v_samp_factor == jpeg.comp_info[2].v_samp_factor;
}

// Rows of one component that come at once, at the scale in which it is decoded.
int rowsAtOnce(const jpeg_component_info &component)
{
    return component.v_samp_factor * component.DCT_scaled_size;
}

// libjpeg writes whole blocks.
QSize roomFor(const jpeg_decompress_struct &jpeg, int plane)
{
    const jpeg_component_info &component = jpeg.comp_info[plane];
    return {int(component.width_in_blocks) * component.DCT_scaled_size,
            int(jpeg.total_iMCU_rows) * rowsAtOnce(component)};
}

void start(jpeg_decompress_struct *jpeg, int denominator)
{
    jpeg->scale_num = 1;
    jpeg->scale_denom = static_cast<unsigned>(denominator);
    jpeg->raw_data_out = TRUE;
    jpeg->do_fancy_upsampling = FALSE;
    jpeg_start_decompress(jpeg);
}

void readRows(jpeg_decompress_struct *jpeg, PlaneMemory *memory)
{
    std::array<std::array<JSAMPROW, mostRowsAtOnce>, MAX_COMPONENTS> rows;
    std::array<JSAMPARRAY, MAX_COMPONENTS> planes;
    const int step = jpeg->max_v_samp_factor * jpeg->min_DCT_scaled_size;
    for (int done = 0; jpeg->output_scanline < jpeg->output_height; ++done) {
        for (int plane = 0; plane < jpeg->num_components; ++plane) {
            const int count = rowsAtOnce(jpeg->comp_info[plane]);
            for (int i = 0; i < count; ++i)
                rows[plane][i] = memory->row(plane, done * count + i);
            planes[plane] = rows[plane].data();
        }
        jpeg_read_raw_data(jpeg, planes.data(), JDIMENSION(step));
    }
    jpeg_finish_decompress(jpeg);
}

QSize sizeOf(const jpeg_component_info &component)
{
    return {int(component.downsampled_width), int(component.downsampled_height)};
}

// What a JPEG means by its numbers.
GstVideoColorimetry jpegColours()
{
    GstVideoColorimetry colours{};
    gst_video_colorimetry_from_string(&colours, "1:4:0:0");
    return colours;
}

} // namespace

std::optional<PicturePlanes> JpegDecoder::decode(GstBuffer *jpeg, const QSize &announced, int denominator,
                                                 PlaneMemory *memory)
{
    Reading reading(jpeg);
    if (!reading.readHeader() || !isCredible(reading.size(), announced) || !isReadAsPlanes(reading.jpeg()) ||
        !reading.attempt([=](jpeg_decompress_struct *info) { start(info, denominator); }))
        return {};
    const jpeg_decompress_struct &info = reading.jpeg();
    const QSize size = ::sizeOf(info.comp_info[0]);
    const bool isColoured = hasColour(info);
    const QSize colourSize = isColoured ? ::sizeOf(info.comp_info[1]) : halved(size);
    memory->create(roomFor(info, 0), isColoured ? roomFor(info, 1) : colourSize);
    if (!reading.attempt([=](jpeg_decompress_struct *started) { readRows(started, memory); }) ||
        !reading.isWhole())
        return {};
    const PicturePlanes planes = memory->planes(size, colourSize, jpegColours());
    for (int i = 1; i < 3 && !isColoured; ++i)
        memset(memory->row(i, 0), noColour, size_t(planes.stride[i]) * size_t(colourSize.height()));
    return planes;
}

QImage JpegDecoder::decodeRgb(GstBuffer *jpeg, const QSize &announced, bool *isWhole)
{
    *isWhole = false;
    Reading reading(jpeg);
    if (!reading.readHeader() || !isCredible(reading.size(), announced))
        return {};
    QImage image = largeImage(reading.size());
    if (image.isNull())
        return image;
    uchar *pixels = image.bits();
    const auto stride = image.bytesPerLine();
    const bool isThrough = reading.attempt([=](jpeg_decompress_struct *info) {
        info->out_color_space = JCS_RGB;
        jpeg_start_decompress(info);
        while (info->output_scanline < info->output_height) {
            JSAMPROW row = pixels + ptrdiff_t(info->output_scanline) * stride;
            jpeg_read_scanlines(info, &row, 1);
        }
        jpeg_finish_decompress(info);
    });
    // Nothing else has written to the memory of rows that did not come.
    for (int y = int(reading.jpeg().output_scanline); !isThrough && y < image.height(); ++y)
        memset(pixels + ptrdiff_t(y) * stride, 0, size_t(stride));
    *isWhole = isThrough && reading.isWhole();
    return image;
}
