#include "Views/Inbox/Coordinator.h"

#include "ViewModels/UnreadCount.h"
#include "Views/Inbox/PageScripts.h"
#include "Views/Widgets/InboxCommands.h"

#include <algorithm>

namespace tessaro {

namespace {

constexpr double zoomStep = 0.1;
constexpr double smallestZoom = 0.5;
constexpr double greatestZoom = 2.0;

} // namespace

Coordinator::Coordinator(PageInboxWebView parent)
    : ScriptDialogs(parent.context.modals), parent_(std::move(parent)) {}

Coordinator::~Coordinator() {
    parent_.context.inbox.unread.set({});
    if (const auto webView = mainWebView_.lock()) {
        webView->setDelegate(nullptr);
        webView->close(); // A script that is still to run holds it, and the page would play on.
    }
}

void Coordinator::attach(const std::shared_ptr<WebView>& webView) {
    webView->setDelegate(this);
    mainWebView_ = webView;
    appearance_.emplace(parent_.context, webView);
    siteNotifications_.emplace(parent_.context, webView);
    sitePermissions_.emplace(parent_.context, webView);
}

void Coordinator::setupNotifications() {
    const auto observe = [this](const char* name, void (Coordinator::*handler)()) {
        commands_.push_back(parent_.context.notifications.observe(
            name, [this, handler](const Announcement&) { (this->*handler)(); }));
    };
    observe(webViewZoomIn, &Coordinator::handleZoomIn);
    observe(webViewZoomOut, &Coordinator::handleZoomOut);
    observe(webViewReload, &Coordinator::handleReload);
    observe(webViewGoHome, &Coordinator::handleGoHome);
    observe(webViewThemeChanged, &Coordinator::handleThemeChanged);
    observe(refreshInbox, &Coordinator::handleReload);
    observe(focusSearchField, &Coordinator::handleFocusSearchField);
    commands_.push_back(parent_.context.inbox.walkHistory.connect([this](bool isForward) {
        if (const auto webView = mainWebView_.lock())
            isForward ? webView->goForward() : webView->goBack();
    }));
    commands_.push_back(parent_.context.inbox.zoomReset.connect([this] { setZoom(naturalZoom); }));
}

void Coordinator::openInbox(const std::string& pageId, const std::string& address) {
    currentPageId_ = pageId;
    homeURL_ = address;
    const auto webView = mainWebView_.lock();
    if (!webView || pageId == pageOnScreen_)
        return;
    parent_.context.inbox.unread.set({});
    hasShownInbox_ = false;
    loadHome(*webView);
}

void Coordinator::requestLeave(std::function<void(bool)> answered) {
    const auto webView = mainWebView_.lock();
    if (!webView)
        return answered(true);
    parent_.context.inbox.unread.set({});
    webView->requestLeave(
        [this, alive = lifetime_.watch(), answered = std::move(answered)](bool mayLeave) {
            if (const auto left = alive ? mainWebView_.lock() : nullptr; left && !mayLeave)
                didChangeTitle(*left);
            answered(mayLeave);
        });
}

void Coordinator::leaveBy(std::function<void(WebView&)> load) {
    if (const auto webView = mainWebView_.lock())
        webView->requestLeave(
            [this, alive = lifetime_.watch(), load = std::move(load)](bool mayLeave) {
                if (const auto left = alive ? mainWebView_.lock() : nullptr; left && mayLeave)
                    load(*left);
            });
}

void Coordinator::loadHome(WebView& webView) {
    webView.setCustomUserAgent(PageInboxWebView::userAgent);
    webView.load(*homeURL_);
}

void Coordinator::handleZoomIn() {
    setZoom(currentZoom_ + zoomStep);
}

void Coordinator::handleZoomOut() {
    setZoom(currentZoom_ - zoomStep);
}

void Coordinator::setZoom(double factor) {
    if (const auto webView = mainWebView_.lock()) {
        currentZoom_ = std::clamp(factor, smallestZoom, greatestZoom);
        webView->setPageZoom(currentZoom_);
    }
}

void Coordinator::handleReload() {
    leaveBy([](WebView& webView) { webView.reload(); });
}

void Coordinator::handleRecovery() {
    if (const auto webView = mainWebView_.lock(); webView && hasShownInbox_)
        webView->reload();
    else
        handleGoHome();
}

void Coordinator::handleGoHome() {
    if (homeURL_)
        leaveBy([this](WebView& webView) { loadHome(webView); });
}

void Coordinator::handleThemeChanged() {
    if (appearance_)
        appearance_->applyTheme();
}

void Coordinator::handleFocusSearchField() {
    if (const auto webView = mainWebView_.lock()) {
        // A field of the page has the cursor only while the browser has the window's focus.
        webView->widget().grab_focus();
        webView->evaluateScript(scripts::searchFieldFocuser);
    }
}

void Coordinator::didStartProvisionalNavigation(WebView&) {
    ++startedLoads_;
    appearance_->setGround(parent_.context.theme.isDarkMode());
    setLoadingNextTurn(true);
}

void Coordinator::didFinishNavigation(WebView& webView) {
    const bool isInbox = parent_.context.endpoints.namesInboxHost(webView.address());
    if (isInbox)
        appearance_->injectTopBarHider();
    else
        appearance_->setGround(false);
    if (!isInbox || !parent_.context.theme.isDarkMode())
        return setLoadingNextTurn(false);
    // The page would flash in its own colours.
    webView.whenPainted([this, alive = lifetime_.watch(), load = startedLoads_] {
        if (alive && load == startedLoads_)
            setLoadingNextTurn(false);
    });
}

void Coordinator::didFailNavigation(WebView&) {
    appearance_->setGround(false); // The engine tells of the error in dark letters.
    setLoadingNextTurn(false);
}

void Coordinator::didShowPage(WebView& webView) {
    const std::string pageId = parent_.context.endpoints.pageIdIn(webView.address());
    if (pageId.empty())
        return;
    siteNotifications_->setPageId(pageId);
    hasShownInbox_ = true;
    if (pageId == currentPageId_)
        return;
    pageOnScreen_ = pageId;
    parent_.context.inbox.shown.emit(pageId);
    pageOnScreen_.clear();
}

void Coordinator::didChangeTitle(WebView& webView) {
    const bool isInbox = parent_.context.endpoints.isInboxSite(webView.address());
    parent_.context.inbox.unread.set(
        isInbox ? UnreadCount::atHead(webView.title()) : UnreadCount());
}

void Coordinator::createWebView(WebView&, std::function<void()> load) {
    leaveBy([load = std::move(load)](WebView&) { load(); });
}

void Coordinator::openElsewhere(const std::string& address) {
    parent_.context.desktop.openWithItsProgram(address);
}

void Coordinator::didChangeFullScreen(bool isFullScreen) {
    parent_.context.inbox.fullScreen.emit(isFullScreen);
}

void Coordinator::webProcessDidTerminate(WebView&) {
    parent_.context.inbox.unread.set({});
    setLoadingNextTurn(false);
    processTerminated_.emit();
}

void Coordinator::setLoadingNextTurn(bool isLoading) {
    // The engine's events can arrive while the screen is being updated.
    parent_.context.clock.post(
        Clock::Delay::zero(), [flag = parent_.isLoading, isLoading] { flag->set(isLoading); });
}

} // namespace tessaro
