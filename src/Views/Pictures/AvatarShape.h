#pragma once

#include "Platform/GHandle.h"

#include <cairomm/context.h>
#include <gdk/gdk.h>

#include <variant>

namespace tessaro {

/// How an avatar is cut.
struct AvatarShape {
    struct RoundedRectangle {
        double cornerRadius; ///< In points; the corners are continuous.
    };
    struct Circle {};
    std::variant<RoundedRectangle, Circle> value;

    static AvatarShape roundedRectangle(double cornerRadius) {
        return {RoundedRectangle{cornerRadius}};
    }
    static AvatarShape circle() { return {Circle{}}; }

    /// Adds the shape to the context's path.
    /// @param side   of the square that it fills, in the context's units
    /// @param scale  the context's units to the point
    void addTo(const Cairo::RefPtr<Cairo::Context>& context, double side, double scale = 1) const;
    /// The middle of a picture, scaled to fill a square and cut. Any thread.
    /// @param side   of the square in pixels
    /// @param scale  pixels to the point
    GObjectPtr<GdkTexture> cut(GdkTexture& picture, int side, double scale) const;
};

} // namespace tessaro
