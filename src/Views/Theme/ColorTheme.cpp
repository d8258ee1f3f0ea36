#include "Views/Theme/ColorTheme.h"

#include "Platform/Text.h"
#include "Views/Theme/ColorPreset.h"

#include <glib.h>

#include <cstdint>
#include <utility>

namespace tessaro {

namespace {

constexpr double lightestForWhiteText = 165;

struct Bytes {
    std::uint32_t value;
    int red() const { return (value >> 16) & 0xFF; }
    int green() const { return (value >> 8) & 0xFF; }
    int blue() const { return value & 0xFF; }
};

/// What a hexadecimal scanner is given: without blanks around it and without one hash sign.
std::string digitsOf(std::string_view hex) {
    std::string text = trimWhitespaceAndNewlines(hex);
    if (text.starts_with('#'))
        text.erase(0, 1);
    return text;
}

/// Reads the leading digits, after an optional "0x", and stops at the first other character; the
/// number saturates at 64 bits. Only its low 24 bits are a colour.
Bytes scan(std::string_view digits) {
    if (digits.starts_with("0x") || digits.starts_with("0X"))
        digits.remove_prefix(2);
    std::uint64_t value = 0;
    for (const char digit : digits) {
        if (!g_ascii_isxdigit(digit))
            break;
        if (value >> 60 != 0)
            return {0xFFFFFF};
        value = value << 4 | static_cast<std::uint64_t>(g_ascii_xdigit_value(digit));
    }
    return {static_cast<std::uint32_t>(value & 0xFFFFFF)};
}

} // namespace

Rgba rgbaFromHex(std::string_view hex) {
    const Bytes bytes = scan(digitsOf(hex));
    return {bytes.red() / 255.0, bytes.green() / 255.0, bytes.blue() / 255.0, 1.0};
}

bool isLightHex(std::string_view hex) {
    const std::string digits = digitsOf(hex);
    if (characterCount(digits) != 6)
        return false;
    const Bytes bytes = scan(digits);
    const double luminance =
        (bytes.red() * 299 + bytes.green() * 587 + bytes.blue() * 114) / 1000.0;
    return luminance > lightestForWhiteText;
}

DynamicColor::DynamicColor(
    std::string lightHex, std::string darkHex, double lightAlpha, double darkAlpha)
    : lightHex_(std::move(lightHex)),
      darkHex_(std::move(darkHex)),
      lightAlpha_(lightAlpha),
      darkAlpha_(darkAlpha) {}

Rgba DynamicColor::resolve(bool dark) const {
    return dark ? rgbaFromHex(darkHex_).withAlpha(darkAlpha_)
                : rgbaFromHex(lightHex_).withAlpha(lightAlpha_);
}

DynamicColor dynamicPresetColor(const ColorPreset& preset, double lightAlpha, double darkAlpha) {
    return DynamicColor(preset.lightHex, preset.darkHex, lightAlpha, darkAlpha);
}

} // namespace tessaro
