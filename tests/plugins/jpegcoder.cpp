#include "tests/plugins/jpegcoder.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <jpeglib.h>

namespace
{

constexpr int quality = 85;
constexpr double truncatedPart = 0.6;
constexpr gsize corruptedBytes = 200;

// One row of blocks: the whole height is handed over in such strips.
constexpr int stripRows = DCTSIZE;

void describe(jpeg_compress_struct *jpeg, const Picture &picture)
{
    jpeg->image_width = JDIMENSION(picture.width());
    jpeg->image_height = JDIMENSION(picture.height());
    jpeg->input_components = 3;
    jpeg->in_color_space = JCS_YCbCr;
    jpeg_set_defaults(jpeg);
    jpeg_set_quality(jpeg, quality, TRUE);
    jpeg->raw_data_in = TRUE;
    jpeg->dct_method = JDCT_IFAST;
    jpeg->comp_info[0].h_samp_factor = 2;
    jpeg->comp_info[0].v_samp_factor = 1;
}

void writeStrips(jpeg_compress_struct *jpeg, Picture *picture)
{
    std::array<std::array<JSAMPROW, stripRows>, 3> rows;
    std::array<JSAMPARRAY, 3> planes = {rows[0].data(), rows[1].data(), rows[2].data()};
    for (int top = 0; top < picture->height(); top += stripRows) {
        for (int plane = 0; plane < 3; ++plane) {
            // The last strip may reach below the picture: its last row is repeated.
            for (int row = 0; row < stripRows; ++row)
                rows[plane][row] = picture->planeRow(plane, std::min(top + row, picture->height() - 1));
        }
        jpeg_write_raw_data(jpeg, planes.data(), stripRows);
    }
}

} // namespace

GstVideoColorimetry jpegColorimetry()
{
    return {GST_VIDEO_COLOR_RANGE_0_255, GST_VIDEO_COLOR_MATRIX_BT601, GST_VIDEO_TRANSFER_SRGB,
            GST_VIDEO_COLOR_PRIMARIES_BT709};
}

GstBuffer *JpegCoder::encode(Picture *picture)
{
    jpeg_compress_struct jpeg = {};
    jpeg_error_mgr errors = {};
    unsigned char *data = nullptr;
    unsigned long size = 0;
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    jpeg_mem_dest(&jpeg, &data, &size);
    describe(&jpeg, *picture);
    jpeg_start_compress(&jpeg, TRUE);
    writeStrips(&jpeg, picture);
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    return gst_buffer_new_wrapped_full(GstMemoryFlags(0), data, size, 0, size, data, std::free);
}

GstBuffer *truncatedFrame(GstBuffer *frame)
{
    const auto kept = gsize(double(gst_buffer_get_size(frame)) * truncatedPart);
    return gst_buffer_copy_region(frame, GST_BUFFER_COPY_ALL, 0, kept);
}

GstBuffer *corruptedFrame(GstBuffer *frame)
{
    GstBuffer *copy = gst_buffer_copy_deep(frame);
    const gsize size = gst_buffer_get_size(copy);
    // Bytes that no picture has: a marker that ends nothing, over and over.
    gst_buffer_memset(copy, size / 2, 0xff, std::min(corruptedBytes, size / 4));
    return copy;
}
