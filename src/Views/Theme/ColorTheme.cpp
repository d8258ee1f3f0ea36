#include "Views/Theme/ColorTheme.h"

#include "Platform/Text.h"
#include "Views/Theme/ColorPreset.h"

#include <glib.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace tessaro {

namespace {

constexpr double lightestForWhiteText = 165;

struct Bytes {
    int red, green, blue;
};

/// Removes the blanks around the text and one leading hash sign.
std::string digitsOf(std::string_view hex) {
    std::string text = trimWhitespaceAndNewlines(hex);
    if (text.starts_with('#'))
        text.erase(0, 1);
    return text;
}

/// Reads the leading digits, with or without "0x" before them. The number saturates at 64 bits; its
/// low 24 bits are the colour.
Bytes scan(const std::string& digits) {
    // g_ascii_strtoull() would also accept blanks and a sign.
    const bool isNumber = g_ascii_isxdigit(digits.c_str()[0]);
    const guint64 value = isNumber ? g_ascii_strtoull(digits.c_str(), nullptr, 16) : 0;
    const auto byte = [value](int shift) { return static_cast<int>(value >> shift & 0xFF); };
    return {byte(16), byte(8), byte(0)};
}

/// As WCAG 2.2 defines it: 0 for black, 1 for white.
double relativeLuminance(const Gdk::RGBA& color) {
    const auto linear = [](double component) {
        return component <= 0.04045 ? component / 12.92
                                    : std::pow((component + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.get_red()) + 0.7152 * linear(color.get_green()) +
           0.0722 * linear(color.get_blue());
}

} // namespace

Gdk::RGBA rgbaFromHex(std::string_view hex) {
    const Bytes bytes = scan(digitsOf(hex));
    const auto component = [](int byte) { return static_cast<float>(byte / 255.0); };
    return {component(bytes.red), component(bytes.green), component(bytes.blue)};
}

bool isLightHex(std::string_view hex) {
    const std::string digits = digitsOf(hex);
    const Bytes bytes = scan(digits);
    const double luminance = (bytes.red * 299 + bytes.green * 587 + bytes.blue * 114) / 1000.0;
    return characterCount(digits) == 6 && luminance > lightestForWhiteText;
}

double contrastRatio(const Gdk::RGBA& one, const Gdk::RGBA& other) {
    const auto [dark, light] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

Gdk::RGBA readableTextOn(const Gdk::RGBA& ground) {
    for (const char* text : {"#FFFFFF", "#1F2937"}) {
        if (contrastRatio(rgbaFromHex(text), ground) >= readableContrast)
            return rgbaFromHex(text);
    }
    return rgbaFromHex("#000000");
}

Gdk::RGBA
dynamicPresetColor(const ColorPreset& preset, bool dark, float lightAlpha, float darkAlpha) {
    Gdk::RGBA color = rgbaFromHex(dark ? preset.darkHex : preset.lightHex);
    color.set_alpha(dark ? darkAlpha : lightAlpha);
    return color;
}

} // namespace tessaro
