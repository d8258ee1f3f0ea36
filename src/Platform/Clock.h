#pragma once

#include "Platform/ScopedConnection.h"
#include "Platform/TimePoint.h"

#include <chrono>
#include <functional>

namespace tessaro {

/// Time as the program sees it: what time it is, and work for later on the main loop. Tests put a
/// clock of their own in its place.
class Clock {
public:
    using TimePoint = tessaro::TimePoint;
    using Delay = std::chrono::milliseconds;

    virtual ~Clock() = default;

    /// The present time. Any thread.
    virtual TimePoint now() const = 0;

    /// Runs `action` on the main loop once `delay` has passed, whatever happens in between; a delay
    /// of zero means the next turn. Any thread.
    virtual void post(Delay delay, std::function<void()> action) = 0;

    /// Like post(), unless the result is dropped first. Main thread.
    [[nodiscard]] virtual ScopedConnection timer(Delay delay, std::function<void()> action) = 0;
};

/// The computer's clock and the default main loop.
class SystemClock final : public Clock {
public:
    static SystemClock& shared();

    TimePoint now() const override;
    void post(Delay delay, std::function<void()> action) override;
    ScopedConnection timer(Delay delay, std::function<void()> action) override;
};

} // namespace tessaro
