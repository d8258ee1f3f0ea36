#pragma once

#include "Engine/WebNotifications.h"
#include "Engine/WebSession.h"
#include "Engine/WebViewDelegate.h"

#include "Platform/Clock.h"
#include "Platform/GHandle.h"
#include "Platform/ScopedConnection.h"

#include <gtkmm/widget.h>

#include <chrono>
#include <string>
#include <vector>

using WebKitWebView = struct _WebKitWebView;
using WebKitScriptDialog = struct _WebKitScriptDialog;

namespace tessaro {

/// One embedded browser page. Its scripts run, its media plays without a click, and it goes back
/// and forward by swiping and zooms by pinching. What is written in it is checked for its spelling
/// in Vietnamese and English, as far as dictionaries are installed. No page survives it in memory.
/// UI thread only.
class WebView {
public:
    /// Without any progress for this long, a load is stopped and has failed.
    static constexpr auto loadTimeout = std::chrono::seconds(60);

    WebView(
        const WebSession& session, Clock& clock,
        WebNotifications::PermittedOrigin permittedOrigin = {});
    ~WebView();
    WebView(const WebView&) = delete;
    WebView& operator=(const WebView&) = delete;

    /// The delegate must outlive this object or be replaced by nullptr.
    void setDelegate(WebViewDelegate* delegate) { delegate_ = delegate; }

    /// What to put into a window.
    Gtk::Widget& widget() const { return *widget_; }

    /// Replaces the engine's identity in every request to come.
    void setCustomUserAgent(const std::string& userAgent);
    /// Starts a navigation, with the cache used as HTTP has it.
    void load(const std::string& address);
    void reload();
    /// Scales the layout; 1 is the natural size.
    void setPageZoom(double factor);
    double pageZoom() const;
    /// Runs a script in the main frame; its result and its errors are ignored.
    void evaluateScript(const std::string& script);
    /// The address of the page shown; empty before the first one.
    std::string address() const;
    /// Whether address() is of a page that is still to come, and not of the one that is shown.
    bool isAwaitingPage() const { return isAwaitingPage_; }
    bool isLoading() const;
    /// The title of the page shown; empty when it has none.
    std::string title() const;

    WebNotifications& notifications() { return notifications_; }

private:
    void setSwipeGestures(bool areEnabled);
    void onLoadChanged(int event);
    void onLoadFailed(const std::string& errorPageAddress);
    bool onScriptDialog(WebKitScriptDialog* dialog);
    void onTitleChanged();
    void onProgress();
    void onWebProcessTerminated();
    void expectProgress();

    GObjectPtr<WebKitWebView> view_;
    Gtk::Widget* widget_;
    WebNotifications notifications_;
    Clock& clock_;
    WebViewDelegate* delegate_ = nullptr;
    bool hasFailed_ = false;
    bool isAwaitingPage_ = false;
    std::string errorPageAddress_; ///< Of the error page that the engine is about to load.
    ScopedConnection timeout_;
    std::vector<ScopedConnection> signals_;
};

} // namespace tessaro
