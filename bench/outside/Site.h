#pragma once

#include "support/LoopbackServer.h"

#include <chrono>
#include <string>

namespace tessaro::bench {

/// The demo's inbox site on the loopback interface: the one page that the program and its peers
/// open. What its script asks for first tells that it runs.
class Site {
public:
    Site();

    const std::string origin() const { return server_.origin(); }
    /// The inbox of the Page of that id; any id will do.
    std::string inbox(int pageId) const;

    /// How often the page's script has begun to run.
    std::size_t runs() const;
    /// Waits until it has run more often than that; throws when that takes too long.
    void waitForRunAfter(std::size_t runs) const;

private:
    test::LoopbackServer server_;
};

} // namespace tessaro::bench
