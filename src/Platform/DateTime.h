#pragma once

#include "Platform/TimePoint.h"

#include <optional>
#include <string>
#include <string_view>

namespace tessaro {

/// The internet date-time form (RFC 3339) in UTC with whole seconds, "2025-03-01T09:30:05Z".
/// Fractions of a second are dropped. The year must have four digits.
std::string formatDateTime(TimePoint time);

/// Reads exactly the form that formatDateTime() writes; nothing for any other text, nor for a day
/// or an hour that does not exist.
std::optional<TimePoint> parseDateTime(std::string_view text);

} // namespace tessaro
