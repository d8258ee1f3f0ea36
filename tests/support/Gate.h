#pragma once

#include <coroutine>
#include <utility>
#include <vector>

namespace tessaro::test {

/// A place where coroutines wait while the test holds it shut. Main thread only.
class Gate {
public:
    ~Gate() { open(); }

    void shut() { open_ = false; }
    void open() {
        open_ = true;
        for (const auto waiting : std::exchange(waiting_, {}))
            waiting.resume();
    }

    /// `co_await gate.pass();`
    auto pass() {
        struct Awaiter {
            Gate& gate;
            bool await_ready() const { return gate.open_; }
            void await_suspend(std::coroutine_handle<> handle) { gate.waiting_.push_back(handle); }
            void await_resume() const {}
        };
        return Awaiter{*this};
    }

private:
    bool open_ = true;
    std::vector<std::coroutine_handle<>> waiting_;
};

} // namespace tessaro::test
