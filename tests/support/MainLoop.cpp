#include "support/MainLoop.h"

namespace tessaro::test {

bool runUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    // The timer wakes the loop for conditions that change outside it. When the condition itself
    // takes long, the timer is always due. At an ordinary priority it would then prevent all
    // drawing.
    const GSourcePtr tick(g_timeout_source_new(5));
    g_source_set_priority(tick.get(), G_PRIORITY_LOW);
    g_source_set_callback(
        tick.get(), [](gpointer) -> gboolean { return G_SOURCE_CONTINUE; }, nullptr, nullptr);
    g_source_attach(tick.get(), nullptr);
    bool met = condition();
    while (!met && std::chrono::steady_clock::now() < end) {
        g_main_context_iteration(nullptr, TRUE);
        met = condition();
    }
    g_source_destroy(tick.get());
    return met;
}

void runPending() {
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
}

} // namespace tessaro::test
