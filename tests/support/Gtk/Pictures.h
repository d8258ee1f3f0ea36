#pragma once

#include <cstdint>
#include <string>

namespace tessaro::test {

/// The bytes of a PNG of one colour, 0xRRGGBBAA.
std::string pngPicture(int width, int height, std::uint32_t color);

/// The beginning of a PNG whose header claims that size; it goes on with data that are none.
std::string pngHeader(std::uint32_t width, std::uint32_t height);

} // namespace tessaro::test
