#pragma once

#include "Platform/HttpClient.h"
#include "support/LoopbackServer.h"

#include <vector>

namespace tessaro::test {

/// An HTTP proxy on loopback that remembers the head of every request: of the tunnels that it opens
/// (CONNECT) and of the plain requests that it passes on.
class RecordingProxy {
public:
    RecordingProxy();

    HttpOptions::Proxy address() const { return {"127.0.0.1", server_.port()}; }
    std::vector<ReceivedRequest> requests() const { return server_.requests(); }
    /// From now on every request is answered with 407.
    void askForCredentials();

private:
    LoopbackServer server_;
};

} // namespace tessaro::test
