#pragma once

#include "support/PrivateSessionBus.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessaro::test {

/// A service on a bus. The test decides its answers, which are the same for every object path. It
/// also works while the main loop is blocked.
class MockBusService {
public:
    using Reply = GObjectPtr<GDBusMessage>;
    /// Answers one call, given as "interface.Method". A null reply leaves the call unanswered. Runs
    /// on another thread.
    using Handler = std::function<Reply(const std::string& method, GDBusMessage* call)>;

    MockBusService(const std::string& busAddress, const std::string& name, Handler handler);
    ~MockBusService();
    MockBusService(const MockBusService&) = delete;
    MockBusService& operator=(const MockBusService&) = delete;

    /// A reply with this body: null, or a tuple. A floating tuple is taken over.
    static Reply answer(GDBusMessage* call, GVariant* body = nullptr);
    /// A reply with a tuple in GVariant's text form.
    static Reply answer(GDBusMessage* call, const char* body);

    /// Sends an answer that the handler left out.
    void reply(const Reply& answer) const;

    /// Emits a signal to everybody on the bus. The arguments are a tuple in GVariant's text form.
    void emit(const char* path, const std::string& signal, const char* arguments) const;

    /// The calls so far, in order: each as "interface.Method" with its arguments in GVariant's text
    /// form.
    std::vector<std::string> calls() const;

private:
    struct State;
    GObjectPtr<GDBusConnection> connection_;
    std::shared_ptr<State> state_;
};

} // namespace tessaro::test
