#include "Views/Inbox/InboxContainerView.h"

#include "Views/Inbox/Coordinator.h"
#include "Views/Widgets/InboxCommands.h"

namespace tessaro {

namespace {

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
      veil_(context.clock) {
    set_expand();
    set_child(stack_);
    reloadButton_.set_halign(Gtk::Align::CENTER);
    reloadButton_.set_valign(Gtk::Align::CENTER);
    reloadButton_.signal_clicked().connect(sigc::mem_fun(*this, &InboxContainerView::loadAgain));
    stack_.add(reloadButton_);
    sandboxNotice_.set_text(sandboxForbidden);
    sandboxNotice_.set_wrap();
    sandboxNotice_.set_width_chars(48);
    sandboxNotice_.set_max_width_chars(56);
    sandboxNotice_.set_halign(Gtk::Align::CENTER);
    sandboxNotice_.set_margin(24);
    sandboxNotice_.set_justify(Gtk::Justification::CENTER);
    sandboxNotice_.set_css_classes({"points-13", "secondary-text"});
    stack_.add(sandboxNotice_);
    add_overlay(veil_);
    loadingChanged_ = isLoading_->observe([this] { showLoading(); });
    findCommand_ =
        context_.notifications.observe(webViewFind, [this](const Notification&) { find(); });
    showBrowser();
}

InboxContainerView::~InboxContainerView() = default;

void InboxContainerView::setPage(PageConfig pageConfig, std::optional<Account> account) {
    pageConfig_ = std::move(pageConfig);
    account_ = std::move(account);
    showBrowser();
}

void InboxContainerView::showBrowser() {
    const PageInboxWebView host{context_, pageConfig_.pageId.text, isLoading_};
    if (browser_) {
        host.updateView(*browser_, *coordinator_);
        return;
    }
    auto webView = browsers_.take();
    if (!webView) {
        stack_.set_visible_child(sandboxNotice_);
        return;
    }
    coordinator_ = host.makeCoordinator();
    coordinator_->signalProcessTerminated().connect(
        [this] { stack_.set_visible_child(reloadButton_); });
    browser_ = host.makeView(*coordinator_, std::move(webView));
    findBar_ = std::make_unique<FindBar>(browser_->webView());
    page_.append(*findBar_);
    page_.append(*browser_);
    stack_.add(page_);
    stack_.set_visible_child(page_);
}

void InboxContainerView::showLoading() {
    if (isLoading_->get()) {
        veil_.cover(hasLoaded_ ? browser_.get() : nullptr);
        stack_.set_visible_child(page_);
        findBar_->close(); // What it found goes with the page.
    } else {
        hasLoaded_ = true;
        veil_.lift();
    }
}

void InboxContainerView::find() {
    // Not behind the veil, nor where something else stands in the page's place.
    if (page_.get_mapped() && !isLoading_->get())
        findBar_->open();
}

void InboxContainerView::loadAgain() {
    // Not a reload: the engine has nothing to reload when the process died during the first load.
    coordinator_->handleGoHome();
}

} // namespace tessaro
