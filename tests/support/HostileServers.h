#pragma once

#include "Platform/HttpClient.h"
#include "support/LoopbackServer.h"
#include "support/PeakMemory.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace tessaro::test {

/// One way in which a server may treat its client badly.
struct HostileServer {
    std::string name;
    LoopbackServer::Handler behave; ///< Empty for a server that refuses connections.
    bool answers = false;           ///< Whether a JSON client still gets its answer whole.

    /// Makes the server behave so, and returns the origin for the client.
    std::string start(LoopbackServer& server) const;
};

/// Every way that this project knows. Each must end within hostileOptions().
///
/// @param body  the JSON object that the client under test would be content with
std::vector<HostileServer> hostileServers(const std::string& body);

/// Its name as a test may be called.
std::string hostileName(const testing::TestParamInfo<HostileServer>& server);

/// Limits short enough for a test to wait for each of them.
HttpOptions hostileOptions();

/// Fails the test when what happens during its life takes too much time or memory for a few
/// requests to one hostile server.
class HostileBounds {
public:
    ~HostileBounds();

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    PeakMemory memory_;
};

} // namespace tessaro::test
