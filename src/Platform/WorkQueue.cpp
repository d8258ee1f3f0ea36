#include "Platform/WorkQueue.h"

#include <future>
#include <memory>
#include <utility>

namespace tessaro {

WorkQueue::~WorkQueue() {
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    wake_.notify_one();
    if (thread_.joinable())
        thread_.join();
}

void WorkQueue::post(std::function<void()> work) {
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(work));
        if (!thread_.joinable())
            thread_ = std::thread(&WorkQueue::run, this);
    }
    wake_.notify_one();
}

void WorkQueue::finish(std::chrono::milliseconds limit) {
    const auto reached = std::make_shared<std::promise<void>>();
    post([reached] { reached->set_value(); });
    reached->get_future().wait_for(limit);
}

void WorkQueue::run() {
    std::unique_lock lock(mutex_);
    for (;;) {
        wake_.wait(lock, [this] { return stopping_ || !waiting_.empty(); });
        if (stopping_)
            return;
        const auto work = std::move(waiting_.front());
        waiting_.pop_front();
        lock.unlock();
        work();
        lock.lock();
    }
}

} // namespace tessaro
