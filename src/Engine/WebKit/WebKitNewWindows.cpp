#include "Engine/WebKit/WebKitNewWindows.h"

#include <webkit/webkit.h>

#include <algorithm>

namespace tessaro {

namespace {

/// No page needs more at a time, and each takes memory.
constexpr std::size_t mostWindows = 8;

/// Whether nothing is asked for yet. The script may lead the window elsewhere later.
bool isBlank(WebKitURIRequest* request) {
    const char* address = webkit_uri_request_get_uri(request);
    return !address || !*address || g_str_has_prefix(address, "about:");
}

} // namespace

WebKitNewWindows::WebKitNewWindows(
    WebKitWebView* view, Clock& clock, WebKitNavigationPolicy& policy, LoadPage loadPage)
    : opener_(view),
      clock_(clock),
      policy_(policy),
      loadPage_(std::move(loadPage)),
      opening_(connectSignal<GtkWidget*(WebKitWebView*, WebKitNavigationAction*)>(
          view, "create", [this](WebKitWebView*, WebKitNavigationAction* action) {
              return reinterpret_cast<GtkWidget*>(open(action));
          })) {}

WebKitWebView* WebKitNewWindows::open(WebKitNavigationAction* action) {
    if (windows_.size() >= mostWindows) {
        const auto request =
            GObjectPtr<WebKitURIRequest>::share(webkit_navigation_action_get_request(action));
        if (!isBlank(request.get()) && policy_.leadsToPage(action))
            loadPage_(request);
        return nullptr;
    }
    const auto view = GObjectPtr<WebKitWebView>::share(static_cast<WebKitWebView*>(g_object_new(
        WEBKIT_TYPE_WEB_VIEW, "related-view", opener_, "settings",
        webkit_web_view_get_settings(opener_), nullptr)));
    auto& signals = windows_.emplace_back(view, std::vector<ScopedConnection>()).signals;
    signals.push_back(connectSignal<gboolean(WebKitWebView*, WebKitPolicyDecision*, int)>(
        view.get(), "decide-policy",
        [this](WebKitWebView* window, WebKitPolicyDecision* decision, int type) -> gboolean {
            return decide(window, decision, type);
        }));
    signals.push_back(connectSignal<GtkWidget*(WebKitWebView*, WebKitNavigationAction*)>(
        view.get(), "create", [this](WebKitWebView*, WebKitNavigationAction* further) {
            return reinterpret_cast<GtkWidget*>(open(further));
        }));
    signals.push_back(connectSignal<void(WebKitWebView*)>(
        view.get(), "close", [this](WebKitWebView* window) { close(window); }));
    // A dialog that nobody sees would hold the page forever.
    signals.push_back(connectSignal<gboolean(WebKitWebView*, WebKitScriptDialog*)>(
        view.get(), "script-dialog",
        [](WebKitWebView*, WebKitScriptDialog*) -> gboolean { return TRUE; }));
    signals.push_back(connectSignal<gboolean(WebKitWebView*, WebKitPrintOperation*)>(
        view.get(), "print",
        [](WebKitWebView*, WebKitPrintOperation*) -> gboolean { return TRUE; }));
    return view.get();
}

bool WebKitNewWindows::decide(WebKitWebView* view, WebKitPolicyDecision* decision, int type) {
    if (type != WEBKIT_POLICY_DECISION_TYPE_NAVIGATION_ACTION)
        return false;
    WebKitNavigationAction* const action = webkit_navigation_policy_decision_get_navigation_action(
        WEBKIT_NAVIGATION_POLICY_DECISION(decision));
    WebKitURIRequest* const request = webkit_navigation_action_get_request(action);
    if (isBlank(request)) {
        // It is blank already. WebKitGTK crashes over a window without an opener that is loaded.
        webkit_policy_decision_ignore(decision);
        return true;
    }
    const auto wanted = GObjectPtr<WebKitURIRequest>::share(request);
    const bool isPage = policy_.leadsToPage(action);
    webkit_policy_decision_ignore(decision);
    close(view);
    if (isPage)
        loadPage_(wanted);
    return true;
}

void WebKitNewWindows::close(WebKitWebView* view) {
    const auto window =
        std::ranges::find_if(windows_, [&](const Window& each) { return each.view.get() == view; });
    if (window == windows_.end())
        return;
    // The engine is still at work with it.
    clock_.post(Clock::Delay::zero(), [view = window->view] {});
    windows_.erase(window);
}

void WebKitNewWindows::closeAll() {
    while (!windows_.empty())
        close(windows_.front().view.get());
}

} // namespace tessaro
