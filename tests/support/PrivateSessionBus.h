#pragma once

#include "Platform/GHandle.h"
#include "support/ScopedEnvironment.h"

#include <stdexcept>
#include <string>

namespace tessaro::test {

/// A new connection to the bus at that address, which nobody shares.
inline GObjectPtr<GDBusConnection> connectToBus(const std::string& address) {
    GErrorSlot error;
    auto connection = GObjectPtr<GDBusConnection>::adopt(g_dbus_connection_new_for_address_sync(
        address.c_str(),
        static_cast<GDBusConnectionFlags>(
            G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
            G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
        nullptr, nullptr, error.out()));
    if (!connection)
        throw std::runtime_error("cannot connect to the bus: " + error.message());
    return connection;
}

/// A session bus for one test. While the object exists, it is the session bus of this process. It
/// has no services and starts none. Everything that uses the bus must be deleted before it.
class PrivateSessionBus {
public:
    PrivateSessionBus() {
        // Starting and ending the daemon changes these variables.
        for (const char* name :
             {"DISPLAY", "DBUS_STARTER_ADDRESS", "DBUS_STARTER_BUS_TYPE",
              "DBUS_SESSION_BUS_ADDRESS"})
            environment_.set(name, std::nullopt);
        g_test_dbus_up(daemon_.get());
    }
    ~PrivateSessionBus() { g_test_dbus_down(daemon_.get()); }
    PrivateSessionBus(const PrivateSessionBus&) = delete;
    PrivateSessionBus& operator=(const PrivateSessionBus&) = delete;

    std::string address() const { return g_test_dbus_get_bus_address(daemon_.get()); }

private:
    ScopedEnvironment environment_;
    GObjectPtr<GTestDBus> daemon_ = GObjectPtr<GTestDBus>::adopt(g_test_dbus_new(G_TEST_DBUS_NONE));
};

} // namespace tessaro::test
