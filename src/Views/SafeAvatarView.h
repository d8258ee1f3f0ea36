#pragma once

#include "Views/ScreenContext.h"

#include <gtkmm/widget.h>

#include <optional>
#include <string>
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
};

} // namespace tessaro
