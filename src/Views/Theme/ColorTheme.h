#pragma once

#include "Platform/Rgba.h"

#include <string>
#include <string_view>

namespace tessaro {

class ThemeManager;
struct ColorPreset;

/// The only place where hex texts become colours, and what every screen draws its accent with.

/// Reads "#RRGGBB" in the lenient way of a hexadecimal scanner; never fails, opaque black at worst.
Rgba rgbaFromHex(std::string_view hex);

/// Whether a six-digit hex text is light enough to need dark text on it: weighted luminance above
/// 165 of 255. False for any other length.
bool isLightHex(std::string_view hex);

/// A colour that is resolved anew at each drawing, against the appearance that is drawn.
class DynamicColor {
public:
    DynamicColor(std::string lightHex, std::string darkHex, double lightAlpha, double darkAlpha);
    Rgba resolve(bool dark) const;

private:
    std::string lightHex_;
    std::string darkHex_;
    double lightAlpha_;
    double darkAlpha_;
};

/// The preset's dark colour in a dark appearance, its light one otherwise.
DynamicColor
dynamicPresetColor(const ColorPreset& preset, double lightAlpha = 1.0, double darkAlpha = 1.0);

} // namespace tessaro
