#include "Views/Inbox/Coordinator.h"

#include "ViewModels/TitleCount.h"
#include "Views/Inbox/PageScripts.h"
#include "Views/Widgets/InboxCommands.h"

#include <algorithm>

namespace tessaro {

namespace {

constexpr double zoomStep = 0.1;
constexpr double smallestZoom = 0.5;
constexpr double greatestZoom = 2.0;

/// The site builds its navigation late and may replace what an earlier run left.
constexpr Clock::Delay hiderDelays[] = {
    Clock::Delay(500), Clock::Delay(1500), Clock::Delay(3000), Clock::Delay(6000),
    Clock::Delay(10000)};

/// Whether a page may have the program load this, which it does on its own authority: local files
/// and scripts, which the engine keeps from a page that asks in another way, stay out of reach.
bool mayOpen(const std::string& address) {
    return isOpenableAddress(address) || address == "about:blank" || address.starts_with("blob:") ||
           address.starts_with("data:");
}

} // namespace

Coordinator::Coordinator(PageInboxWebView parent) : parent_(std::move(parent)) {}

Coordinator::~Coordinator() {
    announceCount("");
    if (const auto webView = mainWebView_.lock())
        webView->setDelegate(nullptr);
}

void Coordinator::attach(const std::shared_ptr<WebView>& webView) {
    webView->setDelegate(this);
    mainWebView_ = webView;
    siteNotifications_.emplace(parent_.context, webView);
    themeChanged_ = parent_.context.theme.observe([this] {
        // The accent, of which it also tells, is none of the page's concern.
        if (std::exchange(wasDark_, isDarkMode()) != isDarkMode())
            handleThemeChanged();
    });
}

void Coordinator::setupNotifications() {
    const auto observe = [this](const char* name, void (Coordinator::*handler)()) {
        commands_.push_back(parent_.context.notifications.observe(
            name, [this, handler](const Notification&) { (this->*handler)(); }));
    };
    observe(webViewZoomIn, &Coordinator::handleZoomIn);
    observe(webViewZoomOut, &Coordinator::handleZoomOut);
    observe(webViewZoomReset, &Coordinator::handleZoomReset);
    observe(webViewReload, &Coordinator::handleReload);
    observe(webViewGoHome, &Coordinator::handleGoHome);
    observe(webViewThemeChanged, &Coordinator::handleThemeChanged);
    observe(refreshInbox, &Coordinator::handleReload);
    observe(focusSearchField, &Coordinator::handleFocusSearchField);
}

void Coordinator::openInbox(const std::string& pageId, const std::string& address) {
    currentPageId_ = pageId;
    homeURL_ = address;
    if (siteNotifications_)
        siteNotifications_->setPageId(pageId);
    announceCount("");
    handleGoHome();
}

void Coordinator::handleZoomIn() {
    setZoom(std::min(currentZoom_ + zoomStep, greatestZoom));
}

void Coordinator::handleZoomOut() {
    setZoom(std::max(currentZoom_ - zoomStep, smallestZoom));
}

void Coordinator::handleZoomReset() {
    setZoom(naturalZoom);
}

void Coordinator::setZoom(double factor) {
    if (const auto webView = mainWebView_.lock()) {
        currentZoom_ = factor;
        webView->setPageZoom(factor);
    }
}

void Coordinator::handleReload() {
    if (const auto webView = mainWebView_.lock())
        webView->reload();
}

void Coordinator::handleGoHome() {
    const auto webView = mainWebView_.lock();
    if (webView && homeURL_) {
        webView->setCustomUserAgent(PageInboxWebView::userAgent);
        webView->load(*homeURL_);
    }
}

void Coordinator::handleThemeChanged() {
    if (const auto webView = mainWebView_.lock())
        applyTheme(*webView);
}

void Coordinator::handleFocusSearchField() {
    if (const auto webView = mainWebView_.lock()) {
        // A field of the page has the cursor only while the browser has the window's focus.
        webView->widget().grab_focus();
        webView->evaluateScript(scripts::searchFieldFocuser);
    }
}

void Coordinator::didStartProvisionalNavigation(WebView&) {
    setLoadingNextTurn(true);
}

void Coordinator::didFinishNavigation(WebView& webView) {
    setLoadingNextTurn(false);
    if (parent_.context.endpoints.namesInboxHost(webView.address()))
        injectTopBarHider(mainWebView_.lock());
}

void Coordinator::didFailNavigation(WebView&) {
    setLoadingNextTurn(false);
}

void Coordinator::didChangeTitle(WebView& webView) {
    const bool isInbox = parent_.context.endpoints.isInboxSite(webView.address());
    announceCount(isInbox ? countAtHead(webView.title()) : "");
}

void Coordinator::createWebView(WebView& webView, const std::string& address) {
    if (mayOpen(address))
        webView.load(address);
}

void Coordinator::runScriptAlert(const std::string& message, std::function<void()> completion) {
    parent_.context.modals.show(
        {.message = message, .buttons = {"OK"}},
        [completion = std::move(completion)](std::optional<std::size_t>) { completion(); });
}

void Coordinator::runScriptConfirm(
    const std::string& message, std::function<void(bool)> completion) {
    parent_.context.modals.show(
        {.message = message, .buttons = {"OK", "Hủy"}},
        [completion = std::move(completion)](std::optional<std::size_t> button) {
            completion(button == 0);
        });
}

void Coordinator::webProcessDidTerminate(WebView&) {
    setLoadingNextTurn(false);
    processTerminated_.emit();
}

void Coordinator::announceCount(const std::string& count) {
    parent_.context.notifications.post(unreadCountChanged, {{"count", count}});
}

void Coordinator::setLoadingNextTurn(bool isLoading) {
    // The engine's events can arrive while the screen is being updated.
    parent_.context.clock.post(
        Clock::Delay::zero(), [flag = parent_.isLoading, isLoading] { flag->set(isLoading); });
}

void Coordinator::injectTopBarHider(const std::shared_ptr<WebView>& webView) {
    webView->evaluateScript(scripts::topBarHider);
    for (const auto delay : hiderDelays)
        parent_.context.clock.post(
            delay, [webView] { webView->evaluateScript(scripts::topBarHider); });
    applyTheme(*webView);
}

void Coordinator::applyTheme(WebView& webView) {
    webView.evaluateScript(isDarkMode() ? scripts::darkModeStyle : scripts::darkModeRemover);
}

bool Coordinator::isDarkMode() const {
    return parent_.context.theme.isDarkMode();
}

} // namespace tessaro
