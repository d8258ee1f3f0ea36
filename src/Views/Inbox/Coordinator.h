#pragma once

#include "Views/Inbox/PageInboxWebView.h"
#include "Views/Inbox/SiteNotifications.h"

#include <sigc++/signal.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessaro {

/// Answers the events of one inbox browser and carries out the commands that the rest of the
/// program announces, until it is destroyed. UI thread only.
class Coordinator final : public WebViewDelegate {
public:
    explicit Coordinator(PageInboxWebView parent);
    ~Coordinator() override;
    Coordinator(const Coordinator&) = delete;
    Coordinator& operator=(const Coordinator&) = delete;

    /// Takes on the browser. It is not kept alive; commands do nothing once it is gone.
    void attach(const std::shared_ptr<WebView>& webView);
    /// Starts to listen to the commands.
    void setupNotifications();
    /// Makes this the Page whose inbox is home, and loads it.
    void openInbox(const std::string& pageId, const std::string& address);

    const std::string& currentPageId() const { return currentPageId_; }
    const std::optional<std::string>& homeURL() const { return homeURL_; }

    void handleZoomIn();
    void handleZoomOut();
    void handleZoomReset();
    void handleReload();
    void handleGoHome();
    void handleThemeChanged();
    void handleFocusSearchField();

    void didStartProvisionalNavigation(WebView& webView) override;
    void didFinishNavigation(WebView& webView) override;
    void didFailNavigation(WebView& webView) override;
    void didChangeTitle(WebView& webView) override;
    void createWebView(WebView& webView, const std::string& address) override;
    void runScriptAlert(const std::string& message, std::function<void()> completion) override;
    void
    runScriptConfirm(const std::string& message, std::function<void(bool)> completion) override;
    void webProcessDidTerminate(WebView& webView) override;

    /// Emitted when the page's process has crashed: nothing is shown until the next load.
    sigc::signal<void()>& signalProcessTerminated() { return processTerminated_; }

private:
    static constexpr double naturalZoom = 1.0;

    void setZoom(double factor);
    /// Sets the identity again and loads the address.
    void load(WebView& webView, const std::string& address);
    /// Announces how much of the Page the site counts as unread; empty for nothing.
    void announceCount(const std::string& count);
    void setLoadingNextTurn(bool isLoading);
    void injectTopBarHider(const std::shared_ptr<WebView>& webView);
    void applyTheme(WebView& webView);
    bool isDarkMode() const;

    const PageInboxWebView parent_;
    std::weak_ptr<WebView> mainWebView_;
    std::string currentPageId_;
    std::optional<std::string> homeURL_;
    double currentZoom_ = naturalZoom;
    std::optional<SiteNotifications> siteNotifications_;
    sigc::signal<void()> processTerminated_;
    std::vector<ScopedConnection> commands_;
    bool wasDark_ = isDarkMode(); ///< When the theme was last told of.
    ScopedConnection themeChanged_;
};

} // namespace tessaro
