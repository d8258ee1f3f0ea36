#pragma once

#include "Engine/WebKit/WebKitNavigationPolicy.h"

#include "Platform/Clock.h"
#include "Platform/GHandle.h"
#include "Platform/ScopedConnection.h"

#include <functional>
#include <list>
#include <vector>

using WebKitURIRequest = struct _WebKitURIRequest;

namespace tessaro {

/// The windows that the pages of one view open. Each exists for the page's scripts only and is
/// never shown. It is gone once it is led to a page, which is loaded elsewhere.
class WebKitNewWindows {
public:
    using LoadPage = std::function<void(GObjectPtr<WebKitURIRequest>)>;

    /// @param view, clock, policy  outlive this
    /// @param loadPage             called with what a window is led to, with the body of a form
    WebKitNewWindows(
        WebKitWebView* view, Clock& clock, WebKitNavigationPolicy& policy, LoadPage loadPage);
    ~WebKitNewWindows() { closeAll(); }
    WebKitNewWindows(const WebKitNewWindows&) = delete;
    WebKitNewWindows& operator=(const WebKitNewWindows&) = delete;

    /// For when the page that opened them is gone.
    void closeAll();

private:
    struct Window {
        GObjectPtr<WebKitWebView> view;
        std::vector<ScopedConnection> signals;
    };

    /// The window that the engine fills; null when there are too many, in which case a page that is
    /// asked for is loaded at once.
    WebKitWebView* open(WebKitNavigationAction* action);
    bool decide(WebKitWebView* view, WebKitPolicyDecision* decision, int type);
    void close(WebKitWebView* view);

    WebKitWebView* const opener_;
    Clock& clock_;
    WebKitNavigationPolicy& policy_;
    const LoadPage loadPage_;
    std::list<Window> windows_;
    ScopedConnection opening_;
};

} // namespace tessaro
