#pragma once

#include "Platform/Task.h"

#include <chrono>
#include <functional>
#include <optional>

namespace tessaro::test {

/// Turns the main loop until `condition` holds; false when it does not hold within `limit`.
bool runUntil(
    const std::function<bool()>& condition,
    std::chrono::milliseconds limit = std::chrono::seconds(30));

/// Runs everything that is due on the main loop now.
void runPending();

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
