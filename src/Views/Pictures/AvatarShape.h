#pragma once

#include "Platform/GHandle.h"

#include <gdk/gdk.h>

#include <limits>

namespace tessaro {

/// The outline of an avatar.
struct AvatarShape {
    double cornerRadius; ///< In points. The corners are continuous.

    static AvatarShape roundedRectangle(double cornerRadius) { return {cornerRadius}; }
    /// A radius larger than the square makes the corners meet in a circle.
    static AvatarShape circle() { return {std::numeric_limits<double>::infinity()}; }

    /// Scales a picture to fill a square, keeps its middle and cuts it to the shape. Any thread.
    /// @param side   of the square in pixels
    /// @param scale  pixels per point
    GObjectPtr<GdkTexture> cut(GdkTexture& picture, int side, double scale) const;
};

} // namespace tessaro
