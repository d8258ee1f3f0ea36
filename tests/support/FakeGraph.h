#pragma once

#include "Services/MetaGraphClient.h"

#include <coroutine>
#include <map>
#include <utility>

namespace tessaro::test {

/// Coroutines wait here while the test keeps the gate shut. UI thread only.
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

/// A Graph API that knows the tokens that the test gives it and refuses all others.
class FakeGraph {
public:
    /// The answers of "/me", by token.
    std::map<std::string, PageInfo> objects;
    /// The answers of "/me/accounts", by user token.
    std::map<std::string, std::vector<MetaGraphClient::ResolvedPage>> managed;
    /// The tokens that clients were made for, in order.
    std::vector<std::string> asked;
    /// No answer comes while it is shut.
    Gate gate;
    AccountRoutes routes; ///< The clients are made with it. They send no request.

    /// This object outlives the factory.
    GraphClientFactory factory();
};

} // namespace tessaro::test
