#pragma once

#include "Platform/HttpClient.h"
#include "support/LoopbackServer.h"

#include <string>
#include <vector>

namespace tessaro::test {

/// One way in which a server may treat its client badly.
struct HostileServer {
    std::string name;
    LoopbackServer::Handler behave; ///< Empty for a server that refuses connections.
    bool answers = false;           ///< Whether a JSON client still gets its answer whole.
};

/// Every way that this project knows. Each must end within hostileOptions().
///
/// @param body  the JSON object that the client under test would be content with
std::vector<HostileServer> hostileServers(const std::string& body);

/// Limits short enough for a test to wait for each of them.
HttpOptions hostileOptions();

} // namespace tessaro::test
