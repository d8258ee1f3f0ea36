#include "Platform/Uuid.h"

#include "Platform/GHandle.h"

namespace tessaro {

namespace {

constexpr std::size_t textLength = 36;

constexpr bool isHyphenPlace(std::size_t index) {
    return index == 8 || index == 13 || index == 18 || index == 23;
}

} // namespace

Uuid Uuid::random() {
    return *parse(takeString(g_uuid_string_random()));
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
    if (text.size() != textLength || !g_uuid_string_is_valid(std::string(text).c_str()))
        return std::nullopt;
    Bytes bytes{};
    std::size_t digits = 0;
    for (const char c : text) {
        if (c == '-')
            continue;
        auto& byte = bytes[digits++ / 2];
        byte = static_cast<std::uint8_t>(byte << 4 | g_ascii_xdigit_value(c));
    }
    return Uuid(bytes);
}

std::string Uuid::text() const {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text(textLength, '-');
    std::size_t at = 0;
    for (const auto byte : bytes_) {
        if (isHyphenPlace(at))
            ++at;
        text[at++] = digits[byte >> 4];
        text[at++] = digits[byte & 15];
    }
    return text;
}

std::size_t Uuid::hash() const noexcept {
    return std::hash<std::string_view>{}(
        {reinterpret_cast<const char*>(bytes_.data()), bytes_.size()});
}

} // namespace tessaro
