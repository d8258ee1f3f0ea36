#pragma once

#include "Platform/AsyncSemaphore.h"

namespace tessaro {

/// The six places that all picture downloads of the program share, whoever asks for the picture.
/// Main thread only.
AsyncSemaphore& pictureDownloads();

} // namespace tessaro
