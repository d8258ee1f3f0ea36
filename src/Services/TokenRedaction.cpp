#include "Services/TokenRedaction.h"

#include "Platform/GHandle.h"

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
    const std::string& text = token.reveal();
    return takeString(g_uri_escape_bytes(
        reinterpret_cast<const guint8*>(text.data()), text.size(), "!$&'()*+,;=:@/?"));
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
