#pragma once

#include "Platform/Task.h"

#include <atomic>
#include <optional>
#include <type_traits>
#include <utility>

namespace tessaro {

namespace detail {
/// GLib synchronises the two threads, but the thread sanitizer does not see that, because GLib is
/// not compiled with it. Both sides touch this counter so that the sanitizer sees the order.
inline std::atomic<unsigned> handOvers = 0;
} // namespace detail

/// Runs `work` on a thread of GLib's pool and yields its result on the main loop. The work must own
/// everything that it touches, because it can outlive the coroutine that awaits it.
template <typename Work>
Task<std::invoke_result_t<Work&>> inBackground(Work work) {
    struct Job {
        Work& work;
        std::optional<std::invoke_result_t<Work&>> result;
    } job{work, std::nullopt};
    co_await AsyncCall(
        [&job](GAsyncReadyCallback ready, gpointer data) {
            const auto task = GObjectPtr<GTask>::adopt(g_task_new(nullptr, nullptr, ready, data));
            detail::handOvers.fetch_add(1);
            g_task_set_task_data(task.get(), &job, nullptr);
            g_task_run_in_thread(
                task.get(), [](GTask* self, gpointer, gpointer started, GCancellable*) noexcept {
                    auto* const running = static_cast<Job*>(started);
                    detail::handOvers.fetch_add(1);
                    running->result.emplace(running->work());
                    detail::handOvers.fetch_add(1);
                    g_task_return_boolean(self, TRUE);
                });
        },
        [](GObject*, GAsyncResult* result) {
            detail::handOvers.load();
            return g_task_propagate_boolean(reinterpret_cast<GTask*>(result), nullptr);
        });
    co_return std::move(*job.result);
}

} // namespace tessaro
