#include "Platform/FileName.h"

#include "Platform/GHandle.h"

namespace tessaro {

namespace {

constexpr std::size_t longestName = 200;

/// The percent sign is encoded too, so that no two texts share a name.
bool needsEncoding(char byte, bool first) {
    return byte == '/' || byte == '%' || g_ascii_iscntrl(byte) || (first && byte == '.');
}

} // namespace

std::string fileNameFor(std::string_view text) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string name;
    for (const char byte : text) {
        if (name.size() > longestName)
            break;
        if (needsEncoding(byte, name.empty()))
            (((name += '%') += digits[(byte >> 4) & 15]) += digits[byte & 15]);
        else
            name += byte;
    }
    if (name.size() <= longestName)
        return name;
    // The letter s is no hexadecimal digit, so that no encoded text begins like this.
    return "%s" +
           takeString(g_compute_checksum_for_data(
               G_CHECKSUM_SHA256, reinterpret_cast<const guchar*>(text.data()), text.size()));
}

} // namespace tessaro
