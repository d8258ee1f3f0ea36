#pragma once

#include <cairomm/context.h>

namespace tessaro {

/// Adds a closed rectangle with smooth corners to the context's path. Each corner is a part of a
/// superellipse: the curvature does not jump where a side ends, and the corner reaches as far out
/// as a circle of that radius. Where the sides are too short for that, the corners become rounder,
/// down to circles.
void addSmoothRectangle(
    const Cairo::RefPtr<Cairo::Context>& context, double x, double y, double width, double height,
    double cornerRadius);

} // namespace tessaro
