#pragma once

#include "Platform/Clock.h"

#include <atomic>
#include <map>
#include <memory>

namespace tessaro::test {

/// A clock that stands still until the test moves it. Work for later runs inside advance(), in the
/// order in which it falls due. UI thread only, except now().
class ManualClock final : public Clock {
public:
    explicit ManualClock(TimePoint start = TimePoint(std::chrono::seconds(1'740'821'405)));
    ~ManualClock() override;

    TimePoint now() const override { return now_; }
    void post(Delay delay, std::function<void()> action) override;
    ScopedConnection timer(Delay delay, std::function<void()> action) override;

    /// Moves the time on and runs what falls due. advance(0ms) runs what waits for the next turn.
    void advance(Delay by);
    std::size_t pending() const { return due_.size(); }

private:
    using Actions = std::multimap<TimePoint, std::shared_ptr<std::function<void()>>>;
    std::atomic<TimePoint> now_; ///< Atomic, because the log's thread reads it.
    Actions due_;
};

} // namespace tessaro::test
