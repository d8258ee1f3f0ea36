#include "inside/MainLoopTime.h"

#include <fcntl.h>
#include <glib.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <stdexcept>

namespace tessaro::bench {

namespace {

/// How long this thread has waited for a processor, in milliseconds. The kernel gives it in
/// nanoseconds, as the second number of /proc/[pid]/schedstat.
double queued() {
    static const int file = open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC);
    char text[64] = {};
    if (pread(file, text, sizeof text - 1, 0) <= 0)
        throw std::runtime_error("the kernel does not tell how long a thread was kept waiting");
    char* second = nullptr;
    std::strtoull(text, &second, 10);
    return static_cast<double>(std::strtoull(second, nullptr, 10)) / 1e6;
}

double unqueued() {
    const std::chrono::duration<double, std::milli> time =
        std::chrono::steady_clock::now().time_since_epoch();
    return time.count() - queued();
}

GPollFunc plainPoll = nullptr;
double polled = 0;

int measuredPoll(GPollFD* files, guint count, int timeout) {
    const auto start = unqueued();
    const int ready = plainPoll(files, count, timeout);
    polled += unqueued() - start;
    return ready;
}

} // namespace

double mainLoopTime() {
    if (!plainPoll) {
        plainPoll = g_main_context_get_poll_func(nullptr);
        g_main_context_set_poll_func(nullptr, measuredPoll);
    }
    return unqueued() - polled;
}

} // namespace tessaro::bench
