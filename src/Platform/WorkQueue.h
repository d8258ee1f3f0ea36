#pragma once

#include <glib.h>

#include <chrono>
#include <functional>
#include <memory>

namespace tessaro {

/// Runs pieces of work one after the other, in the order in which they were posted, on one thread
/// of GLib's pool at a time. Any thread.
///
/// The destructor waits for the piece that is running; those that have not begun are dropped.
class WorkQueue {
public:
    WorkQueue();

    void post(std::function<void()> work);
    /// Waits until everything that was posted before has run, at most for `limit`.
    void finish(std::chrono::milliseconds limit);

private:
    struct End {
        void operator()(GThreadPool* pool) const;
    };

    std::unique_ptr<GThreadPool, End> pool_;
};

} // namespace tessaro
