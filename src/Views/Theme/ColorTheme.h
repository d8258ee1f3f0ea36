#pragma once

#include <gdkmm/rgba.h>

#include <string_view>

namespace tessaro {

struct ColorPreset;

/// Reads "#RRGGBB" as a scanner of hexadecimal numbers would, and never fails: a text without
/// digits is opaque black. Hex texts become colours here and nowhere else.
Gdk::RGBA rgbaFromHex(std::string_view hex);

/// Whether a six-digit hex text is light enough to need dark text on it: weighted luminance above
/// 165 of 255. False for any other length.
bool isLightHex(std::string_view hex);

/// The preset's dark colour in a dark appearance, its light one otherwise. Resolved by the call, so
/// call it anew for each drawing.
Gdk::RGBA
dynamicPresetColor(const ColorPreset& preset, bool dark, float lightAlpha = 1, float darkAlpha = 1);

} // namespace tessaro
