#include "Views/Shell/MainSplitView.h"

#include "Platform/Gtk/PictureDecoder.h"
#include "Platform/Paths.h"
#include "Views/Inbox/SiteNotifications.h"
#include "Views/Shell/FooterBar.h"
#include "Views/Widgets/InboxCommands.h"

#include <gdkmm/frameclock.h>

#include <algorithm>

namespace tessaro {

namespace {

/// How long the list of Pages is shown before a browser is prepared. The Pages are drawn first, and
/// a person who only moves on to the next account causes no work.
constexpr Clock::Delay browserDelay(200);

} // namespace

MainSplitView::MainSplitView(
    const ScreenContext& context, AppLogger& logger, SupportClient& support)
    : Gtk::Box(Gtk::Orientation::VERTICAL),
      context_(context),
      accountsVM_(context.store, context.device, context.clock),
      pagesVM_(context.store, logger, context.clock, context.makeGraphClient, isWholePicture),
      accounts_(context, accountsVM_),
      firstDivider_(Gtk::Orientation::VERTICAL),
      pages_(context, pagesVM_),
      secondDivider_(Gtk::Orientation::VERTICAL),
      detail_(Gtk::Orientation::VERTICAL),
      downloads_(context.desktop),
      browsers_(
          context.engine, paths::webDataFolder(), paths::webCacheFolder(), context.clock,
          [&context] { return SiteNotifications::permittedOrigin(context); }) {
    layOut(logger, support);
    browsers_.signalDownloadStarted().connect(sigc::mem_fun(downloads_, &DownloadBar::add));
    accountChanged_ = accountsVM_.selectedAccount.observe([this] { followAccount(); });
    pageChanged_ = pagesVM_.selectedPage.observe([this] { followPage(); });
    pagesChanged_ = pagesVM_.pages.observe([this] { prepareBrowser(); });
    inboxRequested_ =
        context.notifications.observe(inboxRequested, [this](const Announcement& posted) {
            selectPage(posted.userInfo.at("pageId"));
            followPage();
        });
    showDetail();
}

MainSplitView::~MainSplitView() = default;

void MainSplitView::layOut(AppLogger& logger, SupportClient& support) {
    set_size_request(900, 560);
    columns_.set_vexpand();
    columns_.append(accounts_);
    columns_.append(firstDivider_);
    columns_.append(pages_);
    columns_.append(secondDivider_);
    detail_.set_hexpand();
    placeholder_.set_expand();
    detail_.append(placeholder_);
    detail_.append(downloads_);
    columns_.append(detail_);
    append(columns_);
    append(*Gtk::make_managed<FooterBar>(context_, logger, support));
}

void MainSplitView::on_map() {
    Gtk::Box::on_map();
    // The keyboard begins at the accounts.
    accounts_.child_focus(Gtk::DirectionType::TAB_FORWARD);
    firstFrame_ = connectSignal<void(GdkFrameClock*)>(
        get_frame_clock()->gobj(), "after-paint", [this](GdkFrameClock*) {
            context_.engine.load();
            firstFrame_.disconnect();
        });
}

void MainSplitView::followAccount() {
    const auto& account = *accountsVM_.selectedAccount;
    const auto id = account ? std::optional(account->id) : std::nullopt;
    // The Pages of an edited account are already loaded.
    const bool isAnother = id != shownAccount_;
    shownAccount_ = id;
    if (isAnother && id)
        pagesVM_.loadPages(*id);
    else if (isAnother)
        pagesVM_.clearPages();
    pages_.setAccount(account);
}

void MainSplitView::selectPage(const std::string& pageId) {
    const auto isWanted = [&](const PageConfig& page) { return page.pageId.text == pageId; };
    if (*pagesVM_.selectedPage && isWanted(**pagesVM_.selectedPage))
        return;
    // Several accounts may have the same Page. The selected account comes first.
    auto candidates = *pagesVM_.pages;
    std::ranges::copy(context_.store.loadPages(), std::back_inserter(candidates));
    const auto page = std::ranges::find_if(candidates, isWanted);
    if (page == candidates.end())
        return;
    select(*page);
}

void MainSplitView::select(PageConfig page) {
    const auto account = std::ranges::find(*accountsVM_.accounts, page.accountId, &Account::id);
    if (account == accountsVM_.accounts->end())
        return;
    isSelecting_ = true;
    accountsVM_.selectAccount(Account(*account));
    // As it is now: what is shown keeps a copy.
    const auto stored = std::ranges::find(*pagesVM_.pages, page);
    pagesVM_.selectPage(stored == pagesVM_.pages->end() ? page : PageConfig(*stored));
    isSelecting_ = false;
}

void MainSplitView::requestLeave(std::function<void(bool)> answered) {
    if (inbox_)
        inbox_->requestLeave(std::move(answered));
    else
        answered(true);
}

void MainSplitView::followPage() {
    if (isSelecting_) // In between no Page is selected, which would drop the browser.
        return;
    const auto& page = *pagesVM_.selectedPage;
    const auto isShown = [this](const PageConfig& each) {
        return each.pageId == inbox_->pageConfig().pageId;
    };
    // A Page that is deleted could not be selected again.
    if (!inbox_ || (page && isShown(*page)) ||
        std::ranges::none_of(context_.store.loadPages(), isShown))
        return showDetail();
    inbox_->requestLeave([this, alive = lifetime_.watch()](bool mayLeave) {
        if (!alive)
            return;
        if (!mayLeave && inbox_)
            select(inbox_->pageConfig());
        showDetail();
    });
}

void MainSplitView::showDetail() {
    const auto& page = *pagesVM_.selectedPage;
    if (inbox_ && page) {
        inbox_->setPage(*page, *accountsVM_.selectedAccount);
        return;
    }
    if (!page && placeholder_.get_parent()) // It is already shown.
        return;
    detail_.remove(*detail_.get_first_child());
    inbox_.reset();
    if (!page) {
        detail_.prepend(placeholder_);
        prepareBrowser();
        return;
    }
    inbox_ = std::make_unique<InboxContainerView>(
        context_, *page, *accountsVM_.selectedAccount, browsers_);
    browserTimer_.disconnect();
    inbox_->signalPageShown().connect([this](const std::string& pageId) {
        selectPage(pageId);
        showDetail();
    });
    inbox_->signalFullScreen().connect(sigc::mem_fun(*this, &MainSplitView::showFullScreen));
    inbox_->set_hexpand();
    inbox_->set_size_request(600);
    detail_.prepend(*inbox_);
}

void MainSplitView::showFullScreen(bool isFullScreen) {
    for (auto* child = columns_.get_first_child(); child; child = child->get_next_sibling())
        child->set_visible(child == &detail_ || !isFullScreen);
    get_last_child()->set_visible(!isFullScreen); // The footer.
    if (isFullScreen)
        detail_.remove(downloads_);
    else
        detail_.append(downloads_);
}

void MainSplitView::prepareBrowser() {
    browserTimer_.disconnect();
    if (pagesVM_.pages->empty())
        browsers_.drop();
    else if (!inbox_)
        browserTimer_ = context_.clock.timer(browserDelay, [this] { browsers_.prepare(); });
}

} // namespace tessaro
