#pragma once

#include <string_view>

namespace tessaro {

/// A colour with components from 0 to 1, used as given (no colour-space conversion).
struct Rgba {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    Rgba withAlpha(double value) const { return {red, green, blue, value}; }

    bool operator==(const Rgba&) const = default;
};

} // namespace tessaro
