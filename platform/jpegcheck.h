#pragma once

#include <cstddef>

// Whether a JPEG picture is whole: none of its pixels is made up. Cameras lose parts of pictures on the
// way often, and a decoder fills the gaps with grey without calling it an error.
bool isWholeJpeg(const unsigned char *data, std::size_t bytes);
