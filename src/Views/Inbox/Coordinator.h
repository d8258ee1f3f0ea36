#pragma once

#include "Platform/Lifetime.h"
#include "Views/Inbox/PageAppearance.h"
#include "Views/Inbox/PageInboxWebView.h"
#include "Views/Inbox/ScriptDialogs.h"
#include "Views/Inbox/SiteNotifications.h"
#include "Views/Inbox/SitePermissions.h"

#include <sigc++/signal.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessaro {

/// Answers the events of one inbox browser and carries out the commands that the rest of the
/// program announces, until it is destroyed. UI thread only.
class Coordinator final : public ScriptDialogs {
public:
    explicit Coordinator(PageInboxWebView parent);
    ~Coordinator() override;

    /// Takes on the browser. It is not kept alive; commands do nothing once it is gone.
    void attach(const std::shared_ptr<WebView>& webView);
    /// Starts to listen to the commands.
    void setupNotifications();
    /// Makes this the Page whose inbox is home, and loads it, unless it is being told of by
    /// InboxSignals::shown. The page that is shown is not asked whether it may be left.
    void openInbox(const std::string& pageId, const std::string& address);
    /// Asks it whether it may. What it counts is not shown meanwhile.
    void requestLeave(std::function<void(bool mayLeave)> answered);

    const std::string& currentPageId() const { return currentPageId_; }

    void handleZoomIn();
    void handleZoomOut();
    void handleReload();
    /// After the page's process has crashed: leads back to where the person was, or to the inbox
    /// where none has been shown yet.
    void handleRecovery();
    void handleGoHome();
    void handleThemeChanged();
    void handleFocusSearchField();

    void didStartProvisionalNavigation(WebView& webView) override;
    void didFinishNavigation(WebView& webView) override;
    void didFailNavigation(WebView& webView) override;
    void didShowPage(WebView& webView) override;
    void didChangeTitle(WebView& webView) override;
    void createWebView(WebView& webView, std::function<void()> load) override;
    void openElsewhere(const std::string& address) override;
    void didChangeFullScreen(bool isFullScreen) override;
    void webProcessDidTerminate(WebView& webView) override;

    /// Emitted when the page's process has crashed: nothing is shown until the next load.
    sigc::signal<void()>& signalProcessTerminated() { return processTerminated_; }

private:
    static constexpr double naturalZoom = 1.0;

    void setZoom(double factor);
    /// Leads to another page, if the one that is shown may be left.
    void leaveBy(std::function<void(WebView&)> load);
    void loadHome(WebView& webView);
    void setLoadingNextTurn(bool isLoading);

    const PageInboxWebView parent_;
    std::weak_ptr<WebView> mainWebView_;
    std::string currentPageId_;
    std::optional<std::string> homeURL_;
    double currentZoom_ = naturalZoom;
    std::optional<PageAppearance> appearance_;
    std::optional<SiteNotifications> siteNotifications_;
    std::optional<SitePermissions> sitePermissions_;
    bool hasShownInbox_ = false; ///< That of the current Page.
    std::string pageOnScreen_;   ///< While it is told of.
    int startedLoads_ = 0;
    sigc::signal<void()> processTerminated_;
    std::vector<ScopedConnection> commands_;
    Lifetime lifetime_;
};

} // namespace tessaro
