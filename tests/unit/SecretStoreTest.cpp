#include "Platform/SecretStore.h"

#include "support/MainLoop.h"
#include "support/MockBusService.h"

#include <gtest/gtest.h>

using namespace tessaro;
using namespace std::chrono_literals;
using test::MockBusService;

namespace {

/// The error codes of storing, looking up and clearing one entry; 0 for success.
std::vector<int> failuresOf(SecretStore& store) {
    const auto stored = store.store("service", "account", SecretText("value"));
    const auto found = store.lookup("service", "account");
    const auto cleared = store.clear("service", "account");
    return {
        stored ? 0 : stored.error().code, found ? 0 : found.error().code,
        cleared ? 0 : cleared.error().code};
}

} // namespace

TEST(SecretStore, FailsWithoutASecretServiceAndWithoutABus) {
    SecretStore store(20s);
    {
        const test::PrivateSessionBus bus;
        EXPECT_EQ(failuresOf(store), std::vector<int>(3, G_DBUS_ERROR_SERVICE_UNKNOWN));
    }
    test::ScopedEnvironment environment;
    environment.set("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    EXPECT_EQ(failuresOf(store), std::vector<int>(3, G_IO_ERROR_NOT_FOUND));
}

TEST(SecretStore, GivesUpACallThatTheServiceNeverAnswers) {
    const test::PrivateSessionBus bus;
    MockBusService service(bus.address(), "org.freedesktop.secrets", [](auto&) { return "()"; });
    service.hold(""); // Every method ends so.
    SecretStore store(300ms);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(failuresOf(store), std::vector<int>(3, G_IO_ERROR_TIMED_OUT));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 15s) << "or 75, the bus's own limit";
    EXPECT_TRUE(test::runUntil([&] { return !service.calls().empty(); }));
}
