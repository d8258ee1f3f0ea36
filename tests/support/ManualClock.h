#pragma once

#include "Platform/Clock.h"

#include <algorithm>
#include <atomic>
#include <map>
#include <memory>
#include <utility>

namespace tessaro::test {

/// A clock that stands still until the test moves it. Work for later runs inside advance(), in the
/// order in which it falls due. UI thread only, except now().
class ManualClock final : public Clock {
public:
    ~ManualClock() override {
        // Work that waits here may own a timer that waits here too, so it is deleted one by one.
        while (!due_.empty())
            due_.extract(due_.begin());
    }

    TimePoint now() const override { return now_; }
    void post(Delay delay, std::function<void()> action) override { add(delay, std::move(action)); }
    ScopedConnection timer(Delay delay, std::function<void()> action) override {
        return ScopedConnection([this, added = add(delay, std::move(action))] {
            std::erase_if(due_, [&](const auto& entry) { return entry.second == added; });
        });
    }

    /// Moves the time on and runs what falls due. advance(0ms) runs what waits for the next turn.
    void advance(Delay by) {
        const auto end = now() + by;
        while (!due_.empty() && due_.begin()->first <= end) {
            const auto [time, action] = *due_.begin();
            due_.erase(due_.begin());
            now_ = std::max(now(), time);
            (*action)();
        }
        now_ = end;
    }
    std::size_t pending() const { return due_.size(); }

private:
    using Action = std::shared_ptr<std::function<void()>>;

    Action add(Delay delay, std::function<void()> action) {
        const auto added = std::make_shared<std::function<void()>>(std::move(action));
        due_.emplace(now() + delay, added);
        return added;
    }

    /// 2025-03-01 09:30:05 UTC. Atomic, because the log's thread reads it.
    std::atomic<TimePoint> now_ = TimePoint(std::chrono::seconds(1'740'821'405));
    std::multimap<TimePoint, Action> due_;
};

} // namespace tessaro::test
