#pragma once

#include "DemoServer.h"

#include "Views/Inbox/ClippedWebViewContainer.h"
#include "Views/Inbox/Coordinator.h"
#include "Views/Inbox/PageInboxWebView.h"
#include "support/Gtk/RealEngine.h"
#include "support/Gtk/ScreenWorld.h"
#include "support/LoopbackServer.h"
#include "support/MainLoop.h"

#include <gtkmm/window.h>

#include <memory>
#include <string>

namespace tessaro::test {

/// What an inbox browser needs, on a loopback server that stands in for the inbox site.
struct InboxWorld : ScreenWorld {
    /// Where time stands still, nothing that is meant for later happens in the browser before the
    /// test moves `clock`.
    enum class Time { passes, standsStill };
    explicit InboxWorld(Time time = Time::passes);

    LoopbackServer server;
    LoopbackServer otherServer; ///< Another host, as the injection sees it.
    ScreenContext browserContext;
    WebSession* session = &newSession();

    /// Another one over the same files, as after a new start of the program.
    WebSession& newSession();
    static LoopbackServer::Answer page(const std::string& body);

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
/// Turns the main loop until the expression is true there.
bool waitUntil(WebView& webView, const std::string& expression);

/// One inbox browser in a window of its own.
class InboxBrowser {
public:
    /// Returns when the Page's inbox has loaded.
    explicit InboxBrowser(InboxWorld& world, const std::string& pageId = "1001");
    ~InboxBrowser();

    /// As after the selection of another Page.
    void show(const std::string& pageId);
    WebView& webView() { return *container->webView(); }
    /// Turns the main loop until so many loads have ended since the start.
    bool waitForLoads(int count);
    std::string ask(const std::string& expression) { return test::ask(webView(), expression); }
    bool waitUntil(const std::string& expression) { return test::waitUntil(webView(), expression); }
    /// Turns the main loop until the demo site has its conversations.
    bool waitForConversations();
    /// Leaves for another page, as by following a link.
    void leaveFor(const std::string& address);
    /// The same, and turns the main loop until that load has ended.
    bool follow(const std::string& address);

    std::shared_ptr<Property<bool>> isLoading = std::make_shared<Property<bool>>(false);
    int startedLoads = 0; ///< How often the loading flag went up.
    int endedLoads = 0;   ///< How often it went down.
    std::unique_ptr<Coordinator> coordinator;
    std::unique_ptr<ClippedWebViewContainer> container;
    Gtk::Window window;

private:
    PageInboxWebView host(const std::string& pageId) const;

    InboxWorld& world_;
    ScopedConnection loadingChanged_;
};

/// Clicks with the pointer on the element that the selector finds in the page.
void clickOn(WebView& webView, const std::string& selector);

} // namespace tessaro::test
