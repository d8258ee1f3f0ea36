#pragma once

#include "Platform/GHandle.h"

#include <gdk/gdk.h>

#include <limits>

namespace tessaro {

/// How an avatar is cut.
struct AvatarShape {
    double cornerRadius; ///< In points; the corners are continuous.

    static AvatarShape roundedRectangle(double cornerRadius) { return {cornerRadius}; }
    /// A square whose corners are as round as they can be.
    static AvatarShape circle() { return {std::numeric_limits<double>::infinity()}; }

    /// The middle of a picture, scaled to fill a square and cut. Any thread.
    /// @param side   of the square in pixels
    /// @param scale  pixels to the point
    GObjectPtr<GdkTexture> cut(GdkTexture& picture, int side, double scale) const;
};

} // namespace tessaro
