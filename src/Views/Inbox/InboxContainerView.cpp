#include "Views/Inbox/InboxContainerView.h"

#include "Views/Inbox/Coordinator.h"
#include "Views/Widgets/InboxCommands.h"

#include <gtkmm/eventcontrollerscroll.h>

namespace tessaro {

namespace {

constexpr const char* engineMissing =
    "Không mở được hộp thư vì trình duyệt nhúng của Tessaro bị thiếu hoặc không khớp với phiên bản "
    "này. Hãy cài đặt lại Tessaro rồi mở lại ứng dụng.";
constexpr const char* sandboxForbidden =
    "Không mở được hộp thư vì hệ thống này không cho trình duyệt nhúng chạy trong vùng cách ly. "
    "Hãy cài bubblewrap và xdg-dbus-proxy, cho phép không gian tên người dùng (user namespaces), "
    "rồi chọn lại Page.";

} // namespace

InboxContainerView::InboxContainerView(
    const ScreenContext& context, PageConfig pageConfig, std::optional<Account> account,
    WebViewReserve& browsers)
    : context_(context),
      browsers_(browsers),
      pageConfig_(std::move(pageConfig)),
      account_(std::move(account)),
      veil_(context.clock),
      recordingDot_(context.inbox) {
    set_expand();
    set_child(stack_);
    reloadButton_.set_halign(Gtk::Align::CENTER);
    reloadButton_.set_valign(Gtk::Align::CENTER);
    reloadButton_.signal_clicked().connect([this] { coordinator_->handleRecovery(); });
    stack_.add(page_);
    stack_.add(reloadButton_);
    notice_.set_wrap();
    notice_.set_width_chars(48);
    notice_.set_max_width_chars(56);
    notice_.set_halign(Gtk::Align::CENTER);
    notice_.set_margin(24);
    notice_.set_justify(Gtk::Justification::CENTER);
    notice_.set_css_classes({"points-13", "secondary-text"});
    stack_.add(notice_);
    add_overlay(veil_);
    add_overlay(recordingDot_);
    loadingChanged_ = isLoading_->observe([this] { showLoading(); });
    context_.inbox.find.connect(sigc::mem_fun(*this, &InboxContainerView::find));
    context_.inbox.fullScreen.connect(sigc::mem_fun(*this, &InboxContainerView::showFullScreen));
    zoomByWheel();
    showBrowser();
}

InboxContainerView::~InboxContainerView() = default;

void InboxContainerView::setPage(PageConfig pageConfig, std::optional<Account> account) {
    pageConfig_ = std::move(pageConfig);
    account_ = std::move(account);
    showBrowser();
}

void InboxContainerView::requestLeave(std::function<void(bool)> answered) {
    if (coordinator_)
        coordinator_->requestLeave(std::move(answered));
    else
        answered(true);
}

void InboxContainerView::showBrowser() {
    if (browser_) {
        PageInboxWebView{context_, pageConfig_.pageId.text, isLoading_}.updateView(
            *browser_, *coordinator_);
        return;
    }
    veil_.cover(nullptr); // The engine may still be on its way.
    taking_ = browsers_.take([this](WebViewReserve::Browser browser) {
        if (browser)
            receive(std::move(*browser));
        else
            showLack(browser.error());
    });
}

void InboxContainerView::showLack(WebViewReserve::Lack lack) {
    notice_.set_text(lack == WebViewReserve::Lack::engine ? engineMissing : sandboxForbidden);
    stack_.set_visible_child(notice_);
    veil_.lift();
}

void InboxContainerView::receive(std::shared_ptr<WebView> webView) {
    const PageInboxWebView host{context_, pageConfig_.pageId.text, isLoading_};
    coordinator_ = host.makeCoordinator();
    coordinator_->signalProcessTerminated().connect(
        [this] { stack_.set_visible_child(reloadButton_); });
    browser_ = host.makeView(*coordinator_, std::move(webView));
    findBar_ = std::make_unique<FindBar>(browser_->webView());
    page_.append(*findBar_);
    page_.append(*browser_);
    stack_.set_visible_child(page_);
}

void InboxContainerView::showLoading() {
    if (isLoading_->get()) {
        // A dark page is white for a moment, as the site has it.
        veil_.cover(hasLoaded_ ? browser_.get() : nullptr, context_.theme.isDarkMode());
        stack_.set_visible_child(page_);
        findBar_->close(); // What it found goes with the page.
    } else {
        hasLoaded_ = true;
        veil_.lift();
    }
}

void InboxContainerView::showFullScreen(bool isFullScreen) {
    browser_->setClipped(!isFullScreen);
    if (isFullScreen)
        page_.remove(*findBar_);
    else
        page_.prepend(*findBar_);
}

void InboxContainerView::zoomByWheel() {
    const auto wheel = Gtk::EventControllerScroll::create();
    wheel->set_flags(
        Gtk::EventControllerScroll::Flags::VERTICAL | Gtk::EventControllerScroll::Flags::DISCRETE);
    wheel->set_propagation_phase(Gtk::PropagationPhase::CAPTURE); // The page would scroll.
    wheel->signal_scroll().connect(
        [this, wheel = wheel.get()](double, double steps) {
            const bool isZoom =
                (wheel->get_current_event_state() & Gdk::ModifierType::CONTROL_MASK) ==
                Gdk::ModifierType::CONTROL_MASK;
            if (isZoom && steps != 0)
                context_.notifications.post(steps < 0 ? webViewZoomIn : webViewZoomOut);
            return isZoom;
        },
        false);
    page_.add_controller(wheel);
}

void InboxContainerView::find() {
    // Not behind the veil, nor where something else stands in the page's place or fills the screen.
    if (findBar_ && findBar_->get_parent() && page_.get_mapped() && !isLoading_->get())
        findBar_->open();
}

} // namespace tessaro
