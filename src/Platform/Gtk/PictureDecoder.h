#pragma once

#include "Platform/Cancellation.h"

#include <gdk/gdk.h>

#include <string_view>

namespace tessaro {

/// Decodes a picture of any kind that the platform knows, no larger than it takes to fill `pixels`
/// by `pixels` with its aspect ratio kept, and never enlarged.
///
/// Empty when the bytes are no picture or only the beginning of one, and, before any pixel is
/// decoded, when their header claims more than 4096 pixels in either direction: a picture of a few
/// kilobytes can claim gigabytes. Any thread.
GObjectPtr<GdkTexture>
decodePicture(std::string_view bytes, int pixels, const Cancellation& cancellation);

/// Whether decodePicture() would make a picture of the bytes. Any thread.
bool isWholePicture(std::string_view bytes);

} // namespace tessaro
