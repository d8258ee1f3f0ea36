#include "Views/Inbox/InboxColumn.h"

#include "Platform/Paths.h"
#include "Views/Inbox/SitePermissions.h"
#include "Views/Widgets/Layout.h"

namespace tessaro {

namespace {

/// How long the list of Pages is shown before a browser is prepared. The Pages are drawn first, and
/// a person who only moves on to the next account causes no work.
constexpr Clock::Delay browserDelay(200);

} // namespace

InboxColumn::InboxColumn(
    const ScreenContext& context, const AccountsViewModel& accountsVM,
    const PagesViewModel& pagesVM)
    : Gtk::Box(Gtk::Orientation::VERTICAL),
      context_(context),
      pagesVM_(pagesVM),
      hint_(context, accountsVM, pagesVM),
      downloads_(context.desktop),
      browsers_(
          context.engine, paths::webDataFolder(), paths::webCacheFolder(), context.clock,
          [&context] { return SitePermissions::notifyingOrigin(context); }) {
    set_hexpand();
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

void InboxColumn::requestClose(std::function<void(bool)> answered) {
    if (!downloads_.isBusy())
        return requestLeave(std::move(answered));
    context_.modals.show(
        {.title = "Đang tải tệp xuống",
         .message = "Đóng Tessaro thì các tệp đang tải xuống sẽ bị hủy.",
         .buttons = {"Ở lại", "Đóng"}},
        [this, alive = lifetime_.watch(),
         answered = std::move(answered)](std::optional<std::size_t> pressed) {
            if (alive && pressed == 1)
                requestLeave(answered);
            else
                answered(false);
        });
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
