#pragma once

#include "Services/MetaGraphClient.h"

#include <coroutine>
#include <map>
#include <utility>

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

/// A Graph API that knows the Page tokens that the test gives it and refuses all others.
class FakeGraph {
public:
    /// What "/me" answers, by token.
    std::map<std::string, PageInfo> objects;
    /// What "/me/accounts" answers; no other token is a user's.
    std::map<std::string, std::vector<MetaGraphClient::ResolvedPage>> managed;
    /// The tokens that clients were made for, in order.
    std::vector<std::string> asked;
    /// While it is shut, no answer comes.
    Gate gate;
    AccountRoutes routes; ///< Taken by nobody.

    /// Outlived by this.
    GraphClientFactory factory();
};

} // namespace tessaro::test
