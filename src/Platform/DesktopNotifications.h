#pragma once

#include "Platform/Result.h"
#include "Platform/Task.h"

#include <filesystem>

namespace tessaro {

/// A file that exists only inside a confined package (flatpak-metadata(5)).
inline constexpr const char* confinementMarker = "/.flatpak-info";

/// Asks whether this desktop shows notifications: its notification service who it is and what it
/// can do (Desktop Notifications Specification 1.2), or the desktop portal from within a confined
/// package. An answer is a yes. Fails with the domain "Notifications", GIO's code and text, also
/// when there is no session bus. Main thread.
///
/// @param marker  tells by its existence that the package is confined
Task<Result<void>> askForNotifications(std::filesystem::path marker = confinementMarker);

} // namespace tessaro
