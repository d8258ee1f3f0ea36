#pragma once

#include "DemoServer.h"

#include "Views/Inbox/ClippedWebViewContainer.h"
#include "Views/Inbox/Coordinator.h"
#include "Views/Inbox/PageInboxWebView.h"
#include "support/Gtk/RealEngine.h"
#include "support/Gtk/ScreenWorld.h"
#include "support/LoopbackServer.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>
#include <gtkmm/window.h>

#include <memory>
#include <string>

namespace tessaro::test {

/// Everything that an inbox browser needs. A loopback server stands in for the inbox site.
struct InboxWorld : ScreenWorld {
    /// When time stands still, the browser's delayed work waits until the test moves `clock`.
    enum class Time { passes, standsStill };
    explicit InboxWorld(Time time = Time::passes);

    LoopbackServer server;
    LoopbackServer otherServer; ///< For the browser this is another site.
    ScreenContext browserContext;
    WebSession* session = &newSession();

    /// Another world over the same files, as after a new start of the program.
    WebSession& newSession();
    static LoopbackServer::Answer page(const std::string& body);

    static constexpr const char* inboxPath = "/latest/inbox/all";
};

/// The same with the demo server as the inbox site.
struct DemoWorld : InboxWorld {
    DemoWorld();

    demo::DemoServer site;

    /// The ids of its Pages. Their inboxes open with two, one and three unread messages.
    static constexpr const char* flowers = "100231450000101";
    static constexpr const char* coffee = "100231450000202";
    static constexpr const char* books = "100231450000303";
};

/// The value of a script expression in the web page, as text.
std::string ask(WebView& webView, const std::string& expression);
/// Turns the main loop until the expression is true in the web page.
bool waitUntil(WebView& webView, const std::string& expression);

/// One inbox browser in a window of its own.
class InboxBrowser {
public:
    /// Returns when the inbox of that Page has loaded.
    explicit InboxBrowser(InboxWorld& world, const std::string& pageId = "1001");

    /// Shows another Page, as after its selection.
    void show(const std::string& pageId);
    WebView& webView() { return *container->webView(); }
    /// Turns the main loop until that many loads have ended since the start.
    bool waitForLoads(int count);
    std::string ask(const std::string& expression) { return test::ask(webView(), expression); }
    bool waitUntil(const std::string& expression) { return test::waitUntil(webView(), expression); }
    /// Turns the main loop until the demo site shows its conversations.
    bool waitForConversations();
    /// Opens another web page, as a link does.
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

/// Clicks with the pointer on the element of the web page that the selector finds.
void clickOn(WebView& webView, const std::string& selector);

} // namespace tessaro::test
