#pragma once

#include <chrono>

namespace tessaro {

/// Microseconds hold every year that has four digits; the clock's own nanoseconds end in 2262.
using TimePoint = std::chrono::time_point<std::chrono::system_clock, std::chrono::microseconds>;

} // namespace tessaro
