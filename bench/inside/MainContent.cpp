#include "inside/MainContent.h"

#include "DemoPages.h"
#include "PagePicture.h"
#include "Records.h"
#include "inside/Instructions.h"
#include "inside/MainLoopTime.h"

#include "Views/Columns/AccountButton.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"

#include <gdkmm/frameclock.h>
#include <gtkmm/listview.h>

#include <algorithm>
#include <stdexcept>

namespace tessaro::bench {

namespace {

constexpr int pagesPerAccount = 10;
/// These fit into the window without scrolling.
constexpr std::size_t accountsInView = 8;
/// A quick turn of the wheel, in points for each frame.
constexpr double scrollStep = 120;
constexpr auto patience = std::chrono::seconds(60);

} // namespace

MainContent::MainContent(int accountCount) {
    screen_.endpoints.inboxOrigin = site_.origin();
    const auto accounts = makeAccounts(accountCount);
    const auto pages = makePages(accounts, accountCount * pagesPerAccount);
    screen_.store.saveAccounts(accounts);
    screen_.store.savePages(pages);
    for (std::size_t i = 0; i < std::min(accountsInView, accounts.size()); ++i)
        storePictures(screen_.store.pages(accounts[i].id));
    view_.emplace(screen_.context, screen_.logger, support_);
    screen_.show(*view_);
}

MainContent::~MainContent() {
    screen_.window.unset_child();
}

void MainContent::storePictures(const std::vector<PageConfig>& pages) {
    static const auto picture = demo::drawPicture(demo::demoPages().front().motif, 100);
    for (const auto& page : pages)
        screen_.store.saveAvatarData(page.pageId.text, picture);
}

double MainContent::selectNextAccount() {
    const auto& accounts = *view_->accountsVM().accounts;
    selected_ = (selected_ + 1) % std::min(accountsInView, accounts.size());
    bool drawn = false;
    const auto frame = afterEachFrame([&] { drawn = true; });
    const auto before = mainLoopTime();
    {
        const Instructions counted;
        view_->accountsVM().selectAccount(accounts[selected_]);
        test::runUntil([&] { return drawn; });
    }
    const auto taken = mainLoopTime() - before;
    if (!drawn || view_->pagesVM().pages->size() != pagesPerAccount)
        throw std::runtime_error("the account's Pages are not shown");
    screen_.settle(); // Else the next one would pay for this one's pictures.
    return taken;
}

ScopedConnection MainContent::afterEachFrame(std::function<void()> action) {
    return connectSignal<void(GdkFrameClock*)>(
        view_->get_frame_clock()->gobj(), "after-paint",
        [action = std::move(action)](auto*) { action(); });
}

MainContent::Scrolling MainContent::scrollAccounts() {
    auto* column = test::descendants<AccountSidebar>(*view_).front();
    const auto place = test::descendants<Gtk::ListView>(*column).front()->get_vadjustment();
    Scrolling scrolling;
    bool atEnd = false;
    double before = 0;
    const auto next = [&] {
        if (before > 0)
            scrolling.frames.push_back(mainLoopTime() - before);
        scrolling.mostButtons =
            std::max(scrolling.mostButtons, test::descendants<AccountButton>(*column).size());
        atEnd = place->get_value() + place->get_page_size() >= place->get_upper();
        before = mainLoopTime();
        place->set_value(place->get_value() + scrollStep);
    };
    // Between the ends of two frames lies all that one of them costs.
    const auto frame = afterEachFrame(next);
    next();
    if (!test::runUntil([&] { return atEnd; }, patience))
        throw std::runtime_error("the last account was not reached");
    return scrolling;
}

void MainContent::openNextPage() {
    const auto& pages = *view_->pagesVM().pages;
    const auto before = site_.runs();
    view_->pagesVM().selectPage(pages[++opened_ % pages.size()]);
    if (!test::runUntil([&] { return site_.runs() > before; }, patience))
        throw std::runtime_error("the Page's script did not run");
}

} // namespace tessaro::bench
