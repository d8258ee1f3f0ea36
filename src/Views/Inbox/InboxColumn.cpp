#include "Views/Inbox/InboxColumn.h"

#include "Platform/Paths.h"
#include "Views/Inbox/SitePermissions.h"
#include "Views/Widgets/Layout.h"
#include "Views/Widgets/Symbol.h"

namespace tessaro {

namespace {

/// How long the list of Pages is shown before a browser is prepared. The Pages are drawn first, and
/// a person who only moves on to the next account causes no work.
constexpr Clock::Delay browserDelay(200);

void fillHint(Gtk::Box& hint) {
    hint.set_expand();
    hint.set_halign(Gtk::Align::CENTER);
    hint.set_valign(Gtk::Align::CENTER);
    auto& icon = *Gtk::make_managed<Symbol>("bubble.left.and.bubble.right", 48);
    icon.add_css_class("secondary-text");
    icon.add_css_class("placeholder-icon");
    auto& title = *Gtk::make_managed<Gtk::Label>("Chọn một Page để mở hộp thư");
    title.set_css_classes({"points-15", "medium", "secondary-text"});
    auto& subtitle = *Gtk::make_managed<Gtk::Label>("Hộp thư sẽ hiển thị trực tiếp từ Facebook");
    subtitle.set_css_classes({"points-12", "secondary-text", "placeholder-subtitle"});
    appendAll(hint, icon, title, subtitle);
}

} // namespace

InboxColumn::InboxColumn(const ScreenContext& context, const PagesViewModel& pagesVM)
    : Gtk::Box(Gtk::Orientation::VERTICAL),
      context_(context),
      pagesVM_(pagesVM),
      downloads_(context.desktop),
      browsers_(
          context.engine, paths::webDataFolder(), paths::webCacheFolder(), context.clock,
          [&context] { return SitePermissions::notifyingOrigin(context); }) {
    set_hexpand();
    fillHint(hint_);
    appendAll(*this, hint_, downloads_);
    browsers_.signalDownloadStarted().connect(sigc::mem_fun(downloads_, &DownloadBar::add));
    context.inbox.fullScreen.connect(sigc::mem_fun(*this, &InboxColumn::showFullScreen));
    pagesChanged_ = pagesVM_.pages.observe([this] { prepareBrowser(); });
}

void InboxColumn::showPage(
    const std::optional<PageConfig>& page, const std::optional<Account>& account) {
    if (inbox_ && page)
        return inbox_->setPage(*page, account);
    if (!page && !inbox_) // The hint is already shown.
        return;
    remove(*get_first_child());
    inbox_.reset();
    if (!page) {
        prepend(hint_);
        prepareBrowser();
        return;
    }
    browserTimer_.disconnect();
    inbox_ = std::make_unique<InboxContainerView>(context_, *page, account, browsers_);
    inbox_->set_hexpand();
    inbox_->set_size_request(600);
    prepend(*inbox_);
}

void InboxColumn::requestLeave(std::function<void(bool)> answered) {
    if (inbox_)
        inbox_->requestLeave(std::move(answered));
    else
        answered(true);
}

void InboxColumn::showFullScreen(bool isFullScreen) {
    if (isFullScreen)
        remove(downloads_);
    else
        append(downloads_);
}

void InboxColumn::prepareBrowser() {
    browserTimer_.disconnect();
    if (pagesVM_.pages->empty())
        browsers_.drop();
    else if (!inbox_)
        browserTimer_ = context_.clock.timer(browserDelay, [this] { browsers_.prepare(); });
}

} // namespace tessaro
