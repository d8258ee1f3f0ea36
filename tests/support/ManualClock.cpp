#include "support/ManualClock.h"

#include <algorithm>

namespace tessaro::test {

ManualClock::ManualClock(TimePoint start) : now_(start) {}

ManualClock::~ManualClock() {
    // Work that waits here may own a timer that waits here too, so it is deleted one by one.
    while (!due_.empty())
        due_.extract(due_.begin());
}

void ManualClock::post(Delay delay, std::function<void()> action) {
    due_.emplace(now() + delay, std::make_shared<std::function<void()>>(std::move(action)));
}

ScopedConnection ManualClock::timer(Delay delay, std::function<void()> action) {
    auto shared = std::make_shared<std::function<void()>>(std::move(action));
    due_.emplace(now() + delay, shared);
    return ScopedConnection([this, shared] {
        std::erase_if(due_, [&](const auto& entry) { return entry.second == shared; });
    });
}

void ManualClock::advance(Delay by) {
    const auto end = now() + by;
    while (!due_.empty() && due_.begin()->first <= end) {
        const auto [time, action] = *due_.begin();
        due_.erase(due_.begin());
        now_ = std::max(now(), time);
        (*action)();
    }
    now_ = end;
}

} // namespace tessaro::test
