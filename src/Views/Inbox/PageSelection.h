#pragma once

#include "ViewModels/AccountsViewModel.h"
#include "Views/Inbox/InboxColumn.h"

namespace tessaro {

/// Keeps the Pages in step with the selected account, and the inbox with the selected Page as far
/// as what it shows may be left. What the inbox shows by itself is selected. UI thread only.
class PageSelection {
public:
    /// All arguments outlive this.
    PageSelection(
        const ScreenContext& context, AccountsViewModel& accountsVM, PagesViewModel& pagesVM,
        InboxColumn& inbox);

private:
    void followAccount();
    /// Shows the selected Page's inbox, if what is shown may be left; else selects that again.
    void followPage();
    void showSelected();
    /// Selects the Page of that Graph id, if there is one, and its account.
    void selectPage(const std::string& pageId);
    void select(PageConfig page);

    DataStore& store_;
    AccountsViewModel& accountsVM_;
    PagesViewModel& pagesVM_;
    InboxColumn& inbox_;
    std::optional<AccountId> shownAccount_;
    bool isSelecting_ = false; ///< An account, and then one of its Pages.
    ScopedConnection accountChanged_;
    ScopedConnection pageChanged_;
    ScopedConnection pageShown_;
    ScopedConnection inboxRequested_;
    Lifetime lifetime_;
};

} // namespace tessaro
