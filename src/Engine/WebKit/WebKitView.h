#pragma once

#include "Engine/WebKit/WebKitFinder.h"
#include "Engine/WebKit/WebKitHandOver.h"
#include "Engine/WebKit/WebKitLeaveQuestion.h"
#include "Engine/WebKit/WebKitNavigationPolicy.h"
#include "Engine/WebKit/WebKitNewWindows.h"
#include "Engine/WebKit/WebKitNotifications.h"
#include "Engine/WebKit/WebKitPermissions.h"
#include "Engine/WebView.h"

#include "Platform/Clock.h"
#include "Platform/GHandle.h"
#include "Platform/ScopedConnection.h"

#include <string>
#include <vector>

using WebKitNetworkSession = struct _WebKitNetworkSession;
using WebKitScriptDialog = struct _WebKitScriptDialog;
using WebKitWebView = struct _WebKitWebView;

namespace tessaro {

class WebKitView final : public WebView {
public:
    /// See WebSession::makeView().
    WebKitView(
        WebKitNetworkSession* session, Clock& clock,
        WebNotifications::PermittedOrigin permittedOrigin);
    ~WebKitView() override;
    WebKitView(const WebKitView&) = delete;
    WebKitView& operator=(const WebKitView&) = delete;

    void setDelegate(WebViewDelegate* delegate) override { delegate_ = delegate; }
    Gtk::Widget& widget() const override { return *widget_; }
    void setCustomUserAgent(const std::string& userAgent) override;
    void requestLeave(std::function<void(bool)> answered) override;
    void load(const std::string& address) override;
    void reload() override;
    void goBack() override;
    void goForward() override;
    void close() override;
    void setGround(const Gdk::RGBA& color) override;
    void setPageZoom(double factor) override;
    double pageZoom() const override;
    void evaluateScript(const std::string& script) override;
    void
    askPage(const std::string& script, std::function<void(const std::string&)> answered) override;
    void whenPainted(std::function<void()> painted) override;
    std::string address() const override;
    bool isAwaitingPage() const override { return isAwaitingPage_; }
    bool isLoading() const override;
    std::string title() const override;
    WebNotifications& notifications() override { return notifications_; }
    WebPermissions& permissions() override { return permissions_; }
    PageFinder& finder() override { return finder_; }

private:
    void load(const GObjectPtr<WebKitURIRequest>& request);
    void setSwipeGestures(bool areEnabled);
    void onLoadChanged(int event);
    void onLoadFailed(const std::string& errorPageAddress);
    void onLoadingEnded();
    void onPageShown();
    void onWindowRequested(GObjectPtr<WebKitURIRequest> request);
    /// Ends what was there for a page that is gone.
    void forgetFormerPage();
    void onFullScreenChanged(bool isFullScreen);
    bool onScriptDialog(WebKitScriptDialog* dialog);
    void onTitleChanged();
    void onProgress();
    void onWebProcessTerminated();
    void expectProgress();

    GObjectPtr<WebKitWebView> view_;
    Gtk::Widget* widget_;
    WebKitNotifications notifications_;
    WebKitPermissions permissions_;
    WebKitFinder finder_;
    WebKitHandOver handOver_;
    Clock& clock_;
    WebKitLeaveQuestion leaveQuestion_;
    WebKitNavigationPolicy policy_;
    WebKitNewWindows newWindows_;
    WebViewDelegate* delegate_ = nullptr;
    bool hasFailed_ = false;
    bool isAwaitingPage_ = false;
    bool isBeingLeft_ = false; ///< By the program, which asks no more.
    bool isFullScreen_ = false;
    std::string errorPageAddress_; ///< Of the error page that the engine is about to load.
    ScopedConnection timeout_;
    ScopedConnection addressChanged_;
    std::vector<ScopedConnection> signals_;
    Lifetime lifetime_;
};

} // namespace tessaro
