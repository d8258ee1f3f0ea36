#pragma once

#include "DemoPages.h"

#include <string>

namespace tessaro::demo {

/// Draws a Page's picture: a square PNG of `size` pixels.
std::string drawPicture(Motif motif, int size);

} // namespace tessaro::demo
