#pragma once

#include "support/PrivateSessionBus.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessaro::test {

/// A service on a bus whose answers the test makes up, whatever the object. It works while
/// the main loop is blocked.
class MockBusService {
public:
    using Reply = GObjectPtr<GDBusMessage>;
    /// Answers one call, given as "interface.Method"; a null reply leaves it unanswered for ever.
    /// Runs on a thread of its own.
    using Handler = std::function<Reply(const std::string& method, GDBusMessage* call)>;

    MockBusService(const std::string& busAddress, const std::string& name, Handler handler);
    ~MockBusService();
    MockBusService(const MockBusService&) = delete;
    MockBusService& operator=(const MockBusService&) = delete;

    /// A reply with this body: null, or a tuple that is taken over when it is floating.
    static Reply answer(GDBusMessage* call, GVariant* body = nullptr);
    /// A reply with a tuple in GVariant's text form.
    static Reply answer(GDBusMessage* call, const char* body);
    static Reply refuse(GDBusMessage* call, const char* errorName, const char* text);

    /// Sends an answer that the handler left out.
    void reply(const Reply& answer) const;

    /// Tells everybody on the bus. The arguments are a tuple in GVariant's text form.
    void emit(const char* path, const std::string& signal, const char* arguments) const;

    /// What has been called so far, in order, each as "interface.Method" with its arguments in
    /// GVariant's text form.
    std::vector<std::string> calls() const;

private:
    struct State;
    GObjectPtr<GDBusConnection> connection_;
    std::shared_ptr<State> state_;
};

} // namespace tessaro::test
