#pragma once

#include <cstdint>
#include <string>

namespace tessaro::test {

/// The bytes of a PNG of one colour, 0xRRGGBBAA.
std::string pngPicture(int width, int height, std::uint32_t color);

} // namespace tessaro::test
