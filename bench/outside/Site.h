#pragma once

#include "support/LoopbackServer.h"

#include <chrono>
#include <string>

namespace tessaro::bench {

/// The demo's inbox site on the loopback interface. The program and its peers open the same web
/// page. The first request of its script shows that the script runs.
class Site {
public:
    Site();

    const std::string origin() const { return server_.origin(); }
    /// The address of a Page's inbox. Any id will do.
    std::string inbox(int pageId) const;

    /// How often the script has begun to run.
    std::size_t runs() const;
    /// Waits until the script has begun more often than that. Throws when that takes too long.
    void waitForRunAfter(std::size_t runs) const;

private:
    test::LoopbackServer server_;
};

} // namespace tessaro::bench
