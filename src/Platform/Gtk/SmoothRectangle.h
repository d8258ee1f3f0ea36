#pragma once

#include <cairomm/context.h>

namespace tessaro {

/// Adds to the context's path a closed rectangle whose corners are continuous: they leave the sides
/// without a jump in curvature, along a superellipse, and bulge as far as a circle of that radius
/// would. To be clipped by, filled or stroked, also dashed. Where the sides are too short for that
/// the corners become rounder, down to circles.
void addSmoothRectangle(
    const Cairo::RefPtr<Cairo::Context>& context, double x, double y, double width, double height,
    double cornerRadius);

} // namespace tessaro
