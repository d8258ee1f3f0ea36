#pragma once

#include "support/LoopbackServer.h"

#include <string>
#include <vector>

namespace tessaro::test {

/// One way in which a server may treat its client badly.
struct HostileServer {
    std::string name;
    LoopbackServer::Handler behave; ///< Empty for a server that refuses connections.
    bool answers = false;           ///< Whether a JSON client still gets its answer whole.

    /// Makes the server behave so, and returns the origin for the client.
    std::string start(LoopbackServer& server) const {
        if (!behave)
            return LoopbackServer().origin(); // Nobody is there any more.
        server.handle("*", behave);
        return server.origin();
    }
};

/// Every way that this project knows. Each must end within the limits of its client.
///
/// @param body  the JSON object that the client under test would be content with
std::vector<HostileServer> hostileServers(const std::string& body);

} // namespace tessaro::test
