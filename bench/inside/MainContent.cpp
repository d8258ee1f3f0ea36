#include "inside/MainContent.h"

#include "DemoPages.h"
#include "PagePicture.h"
#include "Records.h"
#include "inside/MainLoopTime.h"

#include "support/MainLoop.h"

#include <gdkmm/frameclock.h>

#include <algorithm>
#include <stdexcept>

namespace tessaro::bench {

namespace {

constexpr int pagesPerAccount = 10;
/// That many accounts fit into the window without scrolling.
constexpr std::size_t accountsInView = 8;

} // namespace

MainContent::MainContent(int accountCount) {
    screen_.endpoints.inboxOrigin = "http://127.0.0.1:9"; // Nobody listens there.
    const auto accounts = makeAccounts(accountCount);
    const auto pages = makePages(accounts, accountCount * pagesPerAccount);
    screen_.store.saveAccounts(accounts);
    screen_.store.savePages(pages);
    for (std::size_t i = 0; i < std::min(accountsInView, accounts.size()); ++i)
        storePictures(screen_.store.pages(accounts[i].id));
    view_.emplace(screen_.context, support_);
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
    const auto frame = connectSignal<void(GdkFrameClock*)>(
        view_->get_frame_clock()->gobj(), "after-paint", [&](auto*) { drawn = true; });
    const auto before = mainLoopTime();
    view_->accountsVM().selectAccount(accounts[selected_]);
    test::runUntil([&] { return drawn; });
    const auto taken = mainLoopTime() - before;
    if (!drawn || view_->pagesVM().pages->size() != pagesPerAccount)
        throw std::runtime_error("the account's Pages are not shown");
    screen_.settle(); // Otherwise this account's pictures would count for the next one.
    return taken;
}

} // namespace tessaro::bench
