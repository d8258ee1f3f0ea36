#pragma once

#include "Platform/Cancellation.h"

#include <gdk/gdk.h>

#include <string_view>

namespace tessaro {

/// Decodes a picture in any format that the platform knows. The result is as small as possible
/// while it covers `pixels` by `pixels` in its aspect ratio, and never larger than the picture.
///
/// Empty when the bytes are no picture or only the beginning of one. Also empty when the header
/// claims more than 4096 pixels in either direction, because a picture of a few kilobytes can claim
/// gigabytes; no pixel is decoded then. Any thread.
GObjectPtr<GdkTexture>
decodePicture(std::string_view bytes, int pixels, const Cancellation& cancellation);

/// Whether decodePicture() can decode the bytes. Any thread.
bool isWholePicture(std::string_view bytes);

} // namespace tessaro
