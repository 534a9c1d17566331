#include "platform/jpegcheck.h"

#include <cstdio>

#include <jerror.h>
#include <jpeglib.h>

#include <csetjmp>

namespace
{

// libjpeg leaves a picture that it cannot read by calling error_exit, which must not return.
struct ErrorManager {
    jpeg_error_mgr base;
    std::jmp_buf giveUp;
};

[[noreturn]] void leave(j_common_ptr info)
{
    std::longjmp(reinterpret_cast<ErrorManager *>(info->err)->giveUp, 1);
}

// Some cameras leave out the end marker or fill up with a few bytes of their own, and lose no pixel by that.
bool isHarmless(int warning)
{
    return warning == JWRN_JPEG_EOF || warning == JWRN_EXTRANEOUS_DATA;
}

// Counts as libjpeg does, without its words on stderr.
void countWarning(j_common_ptr info, int level)
{
    if (level < 0 && !isHarmless(info->err->msg_code))
        ++info->err->num_warnings;
}

void readAll(jpeg_decompress_struct *jpeg)
{
    jpeg_read_header(jpeg, TRUE);
    // The whole of the compressed data is read at any scale; the smallest saves the rest of the work.
    jpeg->scale_num = 1;
    jpeg->scale_denom = 8;
    jpeg->do_fancy_upsampling = FALSE;
    jpeg_start_decompress(jpeg);
    JSAMPARRAY row = (*jpeg->mem->alloc_sarray)(reinterpret_cast<j_common_ptr>(jpeg), JPOOL_IMAGE,
                                                jpeg->output_width * JDIMENSION(jpeg->output_components), 1);
    while (jpeg->output_scanline < jpeg->output_height)
        jpeg_read_scanlines(jpeg, row, 1);
    jpeg_finish_decompress(jpeg);
}

} // namespace

bool isWholeJpeg(const unsigned char *data, std::size_t bytes)
{
    // Zeroed, since an error can come before libjpeg has made it its own.
    jpeg_decompress_struct jpeg{};
    ErrorManager errors;
    jpeg.err = jpeg_std_error(&errors.base);
    errors.base.error_exit = leave;
    errors.base.emit_message = countWarning;
    // NOLINTNEXTLINE(bugprone-*,cert-err52-cpp): libjpeg knows no other way out, and no destructor is jumped
    // over.
    if (setjmp(errors.giveUp) != 0) {
        jpeg_destroy_decompress(&jpeg);
        return false;
    }
    jpeg_create_decompress(&jpeg);
    jpeg_mem_src(&jpeg, data, static_cast<unsigned long>(bytes));
    readAll(&jpeg);
    const bool isWhole = errors.base.num_warnings == 0;
    jpeg_destroy_decompress(&jpeg);
    return isWhole;
}
