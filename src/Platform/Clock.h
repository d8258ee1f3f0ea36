#pragma once

#include "Platform/ScopedConnection.h"
#include "Platform/TimePoint.h"

#include <chrono>
#include <functional>

namespace tessaro {

/// The time, and work to be done later on the main loop. Tests replace it by a clock of their own.
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

    /// Like post(), but dropping the result before the time has come stops it. UI thread.
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
