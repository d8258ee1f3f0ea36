#include "Platform/Clock.h"

#include <memory>

namespace tessaro {

namespace {

GSourcePtr attach(Clock::Delay delay, std::function<void()> action) {
    // Not an idle source even without a delay, because that would wait behind redraws.
    GSourcePtr source(g_timeout_source_new(static_cast<guint>(delay.count())));
    g_source_set_callback(
        source.get(),
        [](gpointer data) noexcept -> gboolean {
            (*static_cast<std::function<void()>*>(data))();
            return G_SOURCE_REMOVE;
        },
        new std::function<void()>(std::move(action)),
        [](gpointer data) { delete static_cast<std::function<void()>*>(data); });
    g_source_attach(source.get(), nullptr);
    return source;
}

} // namespace

SystemClock& SystemClock::shared() {
    static SystemClock clock;
    return clock;
}

Clock::TimePoint SystemClock::now() const {
    return std::chrono::floor<TimePoint::duration>(std::chrono::system_clock::now());
}

void SystemClock::post(Delay delay, std::function<void()> action) {
    attach(delay, std::move(action));
}

ScopedConnection SystemClock::timer(Delay delay, std::function<void()> action) {
    std::shared_ptr<GSource> source = attach(delay, std::move(action));
    return ScopedConnection([source] { g_source_destroy(source.get()); });
}

} // namespace tessaro
