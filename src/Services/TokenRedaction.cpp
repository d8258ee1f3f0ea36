#include "Services/TokenRedaction.h"

#include <glib.h>

namespace tessaro {

namespace {

/// The length of the token at the beginning of the text, where each byte may also stand there as a
/// percent sign and two digits; 0 when it is not there.
std::size_t lengthOfToken(std::string_view text, std::string_view token) {
    if (text.starts_with(token))
        return token.size();
    std::size_t at = 0;
    for (const char byte : token) {
        const bool escaped = text.size() - at > 2 && text[at] == '%' &&
                             g_ascii_xdigit_value(text[at + 1]) == static_cast<guint8>(byte) / 16 &&
                             g_ascii_xdigit_value(text[at + 2]) == static_cast<guint8>(byte) % 16;
        if (!escaped && (at == text.size() || text[at] != byte))
            return 0;
        at += escaped ? 3 : 1;
    }
    return at;
}

} // namespace

std::string encodedForQuery(const SecretText& token) {
    // GLib's own encoder stops at a zero byte.
    constexpr std::string_view kept = "-._~!$&'()*+,;=:@/?";
    constexpr const char* digits = "0123456789ABCDEF";
    std::string result;
    for (const char byte : token.reveal()) {
        if (g_ascii_isalnum(byte) || kept.find(byte) != std::string_view::npos) {
            result += byte;
        } else {
            const auto value = static_cast<unsigned char>(byte);
            result += {'%', digits[value / 16], digits[value % 16]};
        }
    }
    return result;
}

std::string redacted(std::string_view text, const SecretText& token) {
    std::string result;
    while (!text.empty()) {
        if (const auto length = lengthOfToken(text, token.reveal())) {
            result += "…";
            text.remove_prefix(length);
        } else {
            result += text.front();
            text.remove_prefix(1);
        }
    }
    return result;
}

} // namespace tessaro
