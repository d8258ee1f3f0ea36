#include "Platform/Gtk/SmoothRectangle.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace tessaro {

namespace {

/// How far along the sides a corner reaches, in radii.
constexpr double reach = 1.42;
/// Lines per corner; at the radii of the screens each bends by less than can be seen.
constexpr int steps = 20;

/// A corner's centre relative to the rectangle, and the directions of its two axes.
struct Corner {
    double right, bottom; ///< 0 or 1
    double startX, startY, endX, endY;
};
constexpr std::array corners{
    Corner{1, 0, 0, -1, 1, 0}, Corner{1, 1, 1, 0, 0, 1}, Corner{0, 1, 0, 1, -1, 0},
    Corner{0, 0, -1, 0, 0, -1}};

} // namespace

void addSmoothRectangle(
    const Cairo::RefPtr<Cairo::Context>& context, double x, double y, double width, double height,
    double cornerRadius) {
    if (width <= 0 || height <= 0)
        return;
    const double extent = std::min({reach * cornerRadius, width / 2, height / 2});
    if (extent <= 0) {
        context->rectangle(x, y, width, height);
        return;
    }
    // The exponent with which |u|^n + |v|^n = 1 crosses the diagonal where the circle would: 2, the
    // circle itself, when the corner reaches one radius, about 3 when it reaches further.
    const double radius = std::min(cornerRadius, extent);
    const double inset = (1 - std::numbers::sqrt2 / 2) * radius / extent;
    const double exponent = -std::numbers::ln2 / std::log(1 - inset);

    context->begin_new_sub_path();
    for (const Corner& corner : corners) {
        const double centerX = x + extent + corner.right * (width - 2 * extent);
        const double centerY = y + extent + corner.bottom * (height - 2 * extent);
        for (int step = 0; step <= steps; ++step) {
            const double angle = std::numbers::pi / 2 * step / steps;
            const double start = extent * std::pow(std::max(0.0, std::cos(angle)), 2 / exponent);
            const double end = extent * std::pow(std::sin(angle), 2 / exponent);
            context->line_to(
                centerX + start * corner.startX + end * corner.endX,
                centerY + start * corner.startY + end * corner.endY);
        }
    }
    context->close_path();
}

} // namespace tessaro
