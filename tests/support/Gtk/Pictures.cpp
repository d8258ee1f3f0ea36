#include "support/Gtk/Pictures.h"

#include "Platform/GHandle.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

namespace tessaro::test {

namespace {

std::string bigEndian(std::uint32_t value) {
    std::string bytes;
    for (const int shift : {24, 16, 8, 0})
        bytes.push_back(static_cast<char>(value >> shift & 0xFF));
    return bytes;
}

/// The check sum of a PNG chunk (ISO 3309).
std::uint32_t crc(const std::string& bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ (sum & 1 ? 0xEDB88320 : 0);
    }
    return ~sum;
}

} // namespace

std::string pngPicture(int width, int height, std::uint32_t color) {
    const auto picture =
        GObjectPtr<GdkPixbuf>::adopt(gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, width, height));
    gdk_pixbuf_fill(picture.get(), color);
    char* bytes = nullptr;
    gsize length = 0;
    gdk_pixbuf_save_to_buffer(picture.get(), &bytes, &length, "png", nullptr, nullptr);
    const GCharPtr owner(bytes);
    return {bytes, length};
}

std::string pngHeader(std::uint32_t width, std::uint32_t height) {
    using namespace std::string_literals;
    // Eight bits, grey, the standard methods, not interlaced.
    const std::string header = "IHDR" + bigEndian(width) + bigEndian(height) + "\x08\0\0\0\0"s;
    return "\x89PNG\r\n\x1A\n"s + bigEndian(13) + header + bigEndian(crc(header)) +
           bigEndian(1'000'000) + "IDAT" + std::string(40'000, '\0');
}

} // namespace tessaro::test
