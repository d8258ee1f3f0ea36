#include "Services/TokenRedaction.h"

#include "Platform/GHandle.h"

#include <algorithm>

namespace tessaro {

namespace {

/// In bytes. A shorter token protects nothing and may be a part of ordinary words. Real tokens have
/// more than a hundred.
constexpr std::size_t shortestSecret = 8;

/// How many bytes of the text the token takes at its beginning, where each of its bytes may be
/// percent-encoded; 0 when the text does not begin with the token.
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
    const std::string& text = token.reveal();
    std::string result;
    for (std::size_t begin = 0; begin <= text.size();) {
        // GLib does not encode a zero byte, because it finds it at the end of the allowed
        // characters.
        const auto end = std::min(text.find('\0', begin), text.size());
        result += begin > 0 ? "%00" : "";
        result += takeString(g_uri_escape_bytes(
            reinterpret_cast<const guint8*>(text.data() + begin), end - begin, "!$&'()*+,;=:@/?"));
        begin = end + 1;
    }
    return result;
}

std::string redacted(std::string_view text, const SecretText& token) {
    if (token.reveal().size() < shortestSecret)
        return std::string(text);
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
