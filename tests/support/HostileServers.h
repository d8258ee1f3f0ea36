#pragma once

#include "support/LoopbackServer.h"

#include <string>
#include <vector>

namespace tessaro::test {

/// One way in which a server can treat its client badly.
struct HostileServer {
    std::string name;
    LoopbackServer::Handler behave; ///< Empty for a server that refuses connections.
    bool answers = false;           ///< Whether a JSON client still gets the whole answer.

    /// Makes the server behave so, and returns the origin for the client.
    std::string start(LoopbackServer& server) const {
        if (!behave)
            return LoopbackServer().origin(); // That server has ended: nobody listens there.
        server.handle("*", behave);
        return server.origin();
    }
};

/// Every bad behaviour that the tests know. Each must end within the limits of its client.
///
/// @param body  a JSON object that the client under test would accept
std::vector<HostileServer> hostileServers(const std::string& body);

} // namespace tessaro::test
