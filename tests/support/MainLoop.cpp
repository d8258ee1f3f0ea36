#include "support/MainLoop.h"

namespace tessaro::test {

bool runUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
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

void runPending() {
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
}

} // namespace tessaro::test
