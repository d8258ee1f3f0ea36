#pragma once

#include "HttpTypes.h"
#include "InboxSite.h"
#include "SupportSite.h"

#include "Platform/GHandle.h"
#include "Platform/Result.h"

#include <libsoup/soup.h>

#include <map>
#include <string>
#include <vector>

namespace tessaro::demo {

/// A stand-in on the loopback interface for everything that the program talks to: the Graph API
/// under "/v25.0", the inbox site under "/latest/inbox", the support server under "/api". Serves on
/// the default main loop. What a test or the walk wants to know or to change lies under "/demo":
///   GET  /demo/uploads              the logs sent in, as a JSON array
///   GET  /demo/view                 how the open inbox page is being shown (InboxSite::view)
///   POST /demo/hold?site=S          keeps back what graph, inbox or support answers from now on
///   POST /demo/release?site=S       lets it go, and what follows
class DemoServer {
public:
    DemoServer();
    ~DemoServer();
    DemoServer(const DemoServer&) = delete;
    DemoServer& operator=(const DemoServer&) = delete;

    /// @param port  0 picks a free one
    Result<void> listen(unsigned port);
    /// "http://127.0.0.1:PORT" once it listens.
    const std::string& origin() const { return origin_; }

    /// Keeps back what "graph", "inbox" or "support" answers, until it is released.
    void hold(const std::string& site) { held_[site]; }
    void release(const std::string& site);

    const SupportSite& support() const { return support_; }
    const InboxSite& inbox() const { return inbox_; }

private:
    static void onRequest(
        SoupServer* server, SoupServerMessage* message, const char* path, GHashTable* query,
        gpointer self) noexcept;
    Reply answer(const Request& request);
    Reply control(const Request& request);

    GObjectPtr<SoupServer> server_;
    std::string origin_;
    InboxSite inbox_;
    SupportSite support_;
    /// The answers kept back, by site; a site that is not held has no entry.
    std::map<std::string, std::vector<GObjectPtr<SoupServerMessage>>> held_;
};

} // namespace tessaro::demo
