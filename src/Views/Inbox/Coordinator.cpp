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

/// The ground of a page that has none of its own, and the same as the dark style turns it.
const Gdk::RGBA lightGround(1, 1, 1);
const Gdk::RGBA darkGround(0.12F, 0.12F, 0.12F);

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
    if (const auto webView = mainWebView_.lock()) {
        webView->setDelegate(nullptr);
        webView->close(); // A script that is still to run holds it, and the page would play on.
    }
}

void Coordinator::attach(const std::shared_ptr<WebView>& webView) {
    webView->setDelegate(this);
    mainWebView_ = webView;
    setGround(*webView, isDarkMode());
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
            name, [this, handler](const Announcement&) { (this->*handler)(); }));
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
    const auto webView = mainWebView_.lock();
    if (!webView || pageId == pageOnScreen_)
        return;
    announceCount("");
    loadHome(*webView);
}

void Coordinator::requestLeave(std::function<void(bool)> answered) {
    const auto webView = mainWebView_.lock();
    if (!webView)
        return answered(true);
    announceCount("");
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
    leaveBy([](WebView& webView) { webView.reload(); });
}

void Coordinator::handleGoHome() {
    if (homeURL_)
        leaveBy([this](WebView& webView) { loadHome(webView); });
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

void Coordinator::didStartProvisionalNavigation(WebView& webView) {
    ++startedLoads_;
    setGround(webView, isDarkMode());
    setLoadingNextTurn(true);
}

void Coordinator::didFinishNavigation(WebView& webView) {
    const bool isInbox = parent_.context.endpoints.namesInboxHost(webView.address());
    if (isInbox)
        injectTopBarHider(mainWebView_.lock());
    else
        setGround(webView, false);
    if (!isInbox || !isDarkMode())
        return setLoadingNextTurn(false);
    // The page would flash in its own colours.
    webView.whenPainted([this, alive = lifetime_.watch(), load = startedLoads_] {
        if (alive && load == startedLoads_)
            setLoadingNextTurn(false);
    });
}

void Coordinator::didFailNavigation(WebView& webView) {
    setGround(webView, false); // The engine tells of the error in dark letters.
    setLoadingNextTurn(false);
}

void Coordinator::didShowPage(WebView& webView) {
    const std::string pageId = parent_.context.endpoints.pageIdIn(webView.address());
    if (pageId.empty())
        return;
    siteNotifications_->setPageId(pageId);
    if (pageId == currentPageId_)
        return;
    pageOnScreen_ = pageId;
    pageShown_.emit(pageId);
    pageOnScreen_.clear();
}

void Coordinator::didChangeTitle(WebView& webView) {
    const bool isInbox = parent_.context.endpoints.isInboxSite(webView.address());
    announceCount(isInbox ? countAtHead(webView.title()) : "");
}

void Coordinator::createWebView(WebView&, const std::string& address) {
    if (mayOpen(address))
        leaveBy([address](WebView& webView) { webView.load(address); });
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

void Coordinator::runLeaveConfirm(std::function<void(bool)> completion) {
    parent_.context.modals.show(
        {.title = "Rời trang này?",
         .message =
             "Trang báo rằng có nội dung chưa được gửi hoặc chưa được lưu, chẳng hạn một câu "
             "trả lời viết dở. Rời trang thì nội dung đó sẽ mất.",
         .buttons = {"Ở lại", "Rời trang"}},
        [completion = std::move(completion)](std::optional<std::size_t> button) {
            completion(button == 1);
        });
}

void Coordinator::didChangeFullScreen(bool isFullScreen) {
    fullScreen_.emit(isFullScreen);
}

void Coordinator::webProcessDidTerminate(WebView&) {
    announceCount("");
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
    setGround(webView, isDarkMode());
}

void Coordinator::setGround(WebView& webView, bool isDark) {
    webView.setGround(isDark ? darkGround : lightGround);
}

bool Coordinator::isDarkMode() const {
    return parent_.context.theme.isDarkMode();
}

} // namespace tessaro
