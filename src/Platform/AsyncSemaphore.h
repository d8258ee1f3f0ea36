#pragma once

#include "Platform/Clock.h"

#include <coroutine>
#include <cstddef>
#include <deque>
#include <memory>
#include <utility>

namespace tessaro {

/// Lets at most N coroutines at a time past a point; the others wait in order of arrival.
/// Main thread only. Copies share the same places.
class AsyncSemaphore {
    struct State {
        std::size_t free;
        std::deque<std::coroutine_handle<>> waiting;
    };

public:
    explicit AsyncSemaphore(std::size_t places)
        : state_(std::make_shared<State>(State{places, {}})) {}

    /// One place, given back when it goes out of scope.
    class [[nodiscard]] Place {
    public:
        explicit Place(std::shared_ptr<State> state) : state_(std::move(state)) {}
        Place(Place&& other) noexcept = default;
        Place& operator=(Place&&) = delete;
        ~Place() {
            if (!state_)
                return;
            if (state_->waiting.empty()) {
                ++state_->free;
                return;
            }
            const auto next = state_->waiting.front();
            state_->waiting.pop_front();
            // In the next turn: whoever gives the place up ends its work first, and a long row of
            // short ones does not nest.
            SystemClock::shared().post(Clock::Delay(0), [next] { next.resume(); });
        }

    private:
        std::shared_ptr<State> state_;
    };

    /// `const auto place = co_await semaphore.acquire();`
    auto acquire() const {
        struct Awaiter {
            std::shared_ptr<State> state;
            bool await_ready() const {
                if (state->free == 0)
                    return false;
                --state->free;
                return true;
            }
            void await_suspend(std::coroutine_handle<> waiting) const {
                state->waiting.push_back(waiting);
            }
            Place await_resume() { return Place(std::move(state)); }
        };
        return Awaiter{state_};
    }

private:
    std::shared_ptr<State> state_;
};

} // namespace tessaro
