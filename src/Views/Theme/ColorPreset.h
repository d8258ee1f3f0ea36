#pragma once

#include <string>
#include <vector>

namespace tessaro {

/// A named accent colour. Hex texts are a hash sign and six upper-case digits, RRGGBB.
struct ColorPreset {
    std::string id;       ///< Stable lower-case key, which the settings store.
    std::string name;     ///< Label: the Vietnamese name with the English one in parentheses.
    std::string lightHex; ///< Used in a light appearance.
    std::string darkHex;  ///< Used in a dark appearance.

    bool operator==(const ColorPreset&) const = default;
};

/// The fifty presets in the order of the swatch grid.
const std::vector<ColorPreset>& colorPresets();

} // namespace tessaro
