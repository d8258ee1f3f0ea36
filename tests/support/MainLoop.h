#pragma once

#include "Platform/Task.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>

namespace tessaro::test {

/// Turns the main loop until `condition` holds; false when it does not hold within `limit`.
inline bool runUntil(
    const std::function<bool()>& condition,
    std::chrono::milliseconds limit = std::chrono::seconds(30)) {
    const auto end = std::chrono::steady_clock::now() + limit;
    // The timer wakes the loop for conditions that change outside it. When the condition itself
    // takes long, the timer is always due. At an ordinary priority it would then prevent all
    // drawing.
    const auto tick = g_timeout_add_full(
        G_PRIORITY_LOW, 5, [](gpointer) -> gboolean { return G_SOURCE_CONTINUE; }, nullptr,
        nullptr);
    bool met = condition();
    while (!met && std::chrono::steady_clock::now() < end) {
        g_main_context_iteration(nullptr, TRUE);
        met = condition();
    }
    g_source_remove(tick);
    return met;
}

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

/// Runs everything that is due on the main loop now.
inline void runPending() {
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
}

namespace detail {
template <typename T>
Task<void> store(Task<T> task, std::optional<T>* into) {
    into->emplace(co_await std::move(task));
}
} // namespace detail

/// Turns the main loop until the task has ended, and returns its result.
template <typename T>
T await(Task<T> task, std::chrono::milliseconds limit = std::chrono::seconds(30)) {
    std::optional<T> result;
    detail::store(std::move(task), &result).detach();
    if (!runUntil([&] { return result.has_value(); }, limit))
        std::abort(); // The coroutine still points to `result`.
    return std::move(*result);
}

} // namespace tessaro::test
