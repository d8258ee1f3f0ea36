#include "support/PrivateSessionBus.h"

#include <stdexcept>

namespace tessaro::test {

GObjectPtr<GDBusConnection> connectToBus(const std::string& address) {
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

PrivateSessionBus::PrivateSessionBus()
    : daemon_(GObjectPtr<GTestDBus>::adopt(g_test_dbus_new(G_TEST_DBUS_NONE))) {
    // The daemon's own start and end change these.
    for (const char* name : {"DISPLAY", "DBUS_STARTER_ADDRESS", "DBUS_STARTER_BUS_TYPE"})
        environment_.set(name, std::nullopt);
    environment_.set("DBUS_SESSION_BUS_ADDRESS", std::nullopt);
    g_test_dbus_up(daemon_.get());
}

PrivateSessionBus::~PrivateSessionBus() {
    g_test_dbus_down(daemon_.get());
}

} // namespace tessaro::test
