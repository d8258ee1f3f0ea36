#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace tessaro {

/// Runs pieces of work one after the other, in the order in which they were posted, on a thread of
/// its own. The thread starts with the first piece. Any thread.
class WorkQueue {
public:
    WorkQueue() = default;
    /// Waits for the piece that is running; those that have not begun are dropped.
    ~WorkQueue();
    WorkQueue(const WorkQueue&) = delete;
    WorkQueue& operator=(const WorkQueue&) = delete;

    void post(std::function<void()> work);
    /// Waits until everything that was posted before has run, at most for `limit`.
    void finish(std::chrono::milliseconds limit);

private:
    void run();

    std::mutex mutex_; ///< Guards everything below.
    std::condition_variable wake_;
    std::deque<std::function<void()>> waiting_;
    bool stopping_ = false;
    std::thread thread_;
};

} // namespace tessaro
