#pragma once

#include "support/MainLoop.h"

#include <algorithm>

namespace tessaro::test {

/// Turns the main loop until `condition` holds, and returns the time of the longest turn.
inline std::chrono::steady_clock::duration
longestTurnUntil(const std::function<bool()>& condition) {
    auto before = std::chrono::steady_clock::now();
    std::chrono::steady_clock::duration longest{};
    const auto measured = [&] {
        const auto now = std::chrono::steady_clock::now();
        longest = std::max(longest, now - before);
        before = now;
        return condition();
    };
    return runUntil(measured, std::chrono::minutes(1)) ? longest : longest.max();
}

} // namespace tessaro::test
