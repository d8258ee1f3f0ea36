#include "Views/Inbox/PageSelection.h"

#include <algorithm>
#include <iterator>

namespace tessaro {

PageSelection::PageSelection(
    const ScreenContext& context, AccountsViewModel& accountsVM, PagesViewModel& pagesVM,
    InboxColumn& inbox)
    : store_(context.store),
      accountsVM_(accountsVM),
      pagesVM_(pagesVM),
      inbox_(inbox),
      accountChanged_(accountsVM.selectedAccount.observe([this] { followAccount(); })),
      pageChanged_(pagesVM.selectedPage.observe([this] { followPage(); })),
      pageShown_(context.inbox.shown.connect([this](const std::string& pageId) {
          selectPage(pageId);
          showSelected();
      })),
      inboxRequested_(
          context.inbox.requested.connect([this](const std::string& pageId, const std::string&) {
              selectPage(pageId);
              followPage();
          })) {}

void PageSelection::followAccount() {
    const auto& account = *accountsVM_.selectedAccount;
    const auto id = account ? std::optional(account->id) : std::nullopt;
    // The Pages of an edited account are already loaded.
    if (std::exchange(shownAccount_, id) == id)
        return;
    if (id)
        pagesVM_.loadPages(*id);
    else
        pagesVM_.clearPages();
}

void PageSelection::selectPage(const std::string& pageId) {
    const auto isWanted = [&](const PageConfig& page) { return page.pageId.text == pageId; };
    if (*pagesVM_.selectedPage && isWanted(**pagesVM_.selectedPage))
        return;
    // Several accounts may have the same Page. The selected account comes first.
    auto candidates = *pagesVM_.pages;
    std::ranges::copy(store_.loadPages(), std::back_inserter(candidates));
    const auto page = std::ranges::find_if(candidates, isWanted);
    if (page == candidates.end())
        return;
    select(*page);
}

void PageSelection::select(PageConfig page) {
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

void PageSelection::followPage() {
    if (isSelecting_) // In between no Page is selected, which would drop the browser.
        return;
    const auto* const shown = inbox_.shownPage();
    const auto& page = *pagesVM_.selectedPage;
    const auto isShown = [shown](const PageConfig& each) { return each.pageId == shown->pageId; };
    // A Page that is deleted could not be selected again.
    if (!shown || (page && isShown(*page)) || std::ranges::none_of(store_.loadPages(), isShown))
        return showSelected();
    inbox_.requestLeave([this, alive = lifetime_.watch()](bool mayLeave) {
        if (!alive)
            return;
        if (const auto* const kept = inbox_.shownPage(); kept && !mayLeave)
            select(*kept);
        showSelected();
    });
}

void PageSelection::showSelected() {
    inbox_.showPage(*pagesVM_.selectedPage, *accountsVM_.selectedAccount);
}

} // namespace tessaro
