#pragma once

#include "Platform/GHandle.h"
#include "support/ScopedEnvironment.h"

#include <string>

namespace tessaro::test {

/// A connection to the bus at that address that nobody shares.
GObjectPtr<GDBusConnection> connectToBus(const std::string& address);

/// A session bus for one test: while it exists it is the session bus of this process. No service is
/// on it and none is started by it. Everything that uses the bus must be gone before it goes.
class PrivateSessionBus {
public:
    PrivateSessionBus();
    ~PrivateSessionBus();
    PrivateSessionBus(const PrivateSessionBus&) = delete;
    PrivateSessionBus& operator=(const PrivateSessionBus&) = delete;

    std::string address() const { return g_test_dbus_get_bus_address(daemon_.get()); }

private:
    ScopedEnvironment environment_;
    GObjectPtr<GTestDBus> daemon_;
};

} // namespace tessaro::test
