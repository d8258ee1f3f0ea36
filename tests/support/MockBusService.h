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
    /// The answer to a call, given as "interface.Method": a tuple in GVariant's text form. Runs on
    /// another thread.
    using Handler = std::function<std::string(const std::string& method)>;

    MockBusService(const std::string& busAddress, const std::string& name, Handler handler);
    ~MockBusService();
    MockBusService(const MockBusService&) = delete;
    MockBusService& operator=(const MockBusService&) = delete;

    /// From now on leaves calls unanswered whose "interface.Method" ends so.
    void hold(const std::string& method);
    /// Answers the calls that were left, and holds back further ones.
    void answerHeld();

    /// Emits a signal to everybody on the bus. The arguments are a tuple in GVariant's text form.
    void emit(const char* path, const std::string& signal, const std::string& arguments) const;

    /// The calls so far, in order: each as "interface.Method" with its arguments in GVariant's text
    /// form.
    std::vector<std::string> calls() const;

private:
    struct State;
    GObjectPtr<GDBusConnection> connection_;
    std::shared_ptr<State> state_;
};

} // namespace tessaro::test
