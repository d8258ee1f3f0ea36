#pragma once

#include <gdkmm/rgba.h>

#include <string_view>

namespace tessaro {

struct ColorPreset;

/// Reads "#RRGGBB". Ignores surrounding blanks and what follows the hexadecimal digits, and uses
/// the lowest six of these. Never fails: a text without digits gives opaque black.
Gdk::RGBA rgbaFromHex(std::string_view hex);

/// Whether text on that colour must be dark: its weighted luminance is above 165 of 255. False for
/// a text that has not six digits.
bool isLightHex(std::string_view hex);

/// How far two opaque colours stand apart, from 1 to 21: the contrast ratio of WCAG 2.2.
double contrastRatio(const Gdk::RGBA& one, const Gdk::RGBA& other);

/// What WCAG 2.2 asks of text on its ground.
constexpr double readableContrast = 4.5;

/// White, a dark slate or black: the first that is readable on that ground. One of them always is.
Gdk::RGBA readableTextOn(const Gdk::RGBA& ground);

/// The preset's dark colour in a dark appearance, its light one otherwise. Call it for each
/// drawing, because the appearance may change in between.
Gdk::RGBA
dynamicPresetColor(const ColorPreset& preset, bool dark, float lightAlpha = 1, float darkAlpha = 1);

} // namespace tessaro
