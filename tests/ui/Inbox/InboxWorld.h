#pragma once

#include "DemoServer.h"

#include "Platform/Gtk/WebSession.h"
#include "Views/ClippedWebViewContainer.h"
#include "Views/Coordinator.h"
#include "Views/PageInboxWebView.h"
#include "Views/ScreenContext.h"
#include "support/Gtk/ScreenWorld.h"
#include "support/LoopbackServer.h"
#include "support/MainLoop.h"

#include <gtkmm/window.h>

#include <memory>
#include <string>

namespace tessaro::test {

/// What an inbox browser needs, on a loopback server that stands in for the inbox site.
struct InboxWorld : ScreenWorld {
    /// With a ManualClock in place of the computer's, nothing that is meant for later happens by
    /// itself in the browser.
    explicit InboxWorld(Clock& browserClock = SystemClock::shared());

    LoopbackServer server;
    LoopbackServer otherServer; ///< Another host, as the injection sees it.
    ScreenContext browserContext;
    std::unique_ptr<WebSession> session = newSession();

    /// Another one over the same files, as after a new start of the program.
    std::unique_ptr<WebSession> newSession();
    static LoopbackServer::Answer page(const std::string& body, const std::string& cookie = "");

    static constexpr const char* inboxPath = "/latest/inbox/all";
};

/// With the demo server for the inbox site.
struct DemoWorld : InboxWorld {
    DemoWorld();

    demo::DemoServer site;

    /// Of its Pages. What is unread when their inboxes open: two messages, one, three.
    static constexpr const char* flowers = "100231450000101";
    static constexpr const char* coffee = "100231450000202";
    static constexpr const char* books = "100231450000303";
};

/// The value of a script expression in the browser's page, as text.
std::string ask(WebView& webView, const std::string& expression);

/// One inbox browser in a window of its own.
class InboxBrowser {
public:
    explicit InboxBrowser(InboxWorld& world, const std::string& pageId = "1001");
    InboxBrowser(
        const ScreenContext& context, const WebSession& session, const std::string& pageId);
    ~InboxBrowser();

    /// As after the selection of another Page.
    void show(const std::string& pageId);
    WebView& webView() { return *container->webView(); }
    /// Turns the main loop until so many loads have ended since the start.
    bool waitForLoads(int count);
    std::string ask(const std::string& expression);
    bool waitUntil(const std::string& expression);
    /// Turns the main loop until the demo site has its conversations.
    bool waitForConversations();
    /// Leaves for another page by following a link.
    void follow(const std::string& address);

    std::shared_ptr<tessaro::Property<bool>> isLoading =
        std::make_shared<tessaro::Property<bool>>(false);
    int startedLoads = 0; ///< How often the loading flag went up.
    int endedLoads = 0;   ///< How often it went down.
    std::unique_ptr<Coordinator> coordinator;
    std::unique_ptr<ClippedWebViewContainer> container;
    Gtk::Window window;

private:
    PageInboxWebView host(const std::string& pageId) const;

    const ScreenContext& context_;
    ScopedConnection loadingChanged_;
};

} // namespace tessaro::test
