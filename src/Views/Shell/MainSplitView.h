#pragma once

#include "Views/Columns/AccountSidebar.h"
#include "Views/Columns/PageListView.h"
#include "Views/Inbox/PageSelection.h"
#include "Views/Shell/FooterBar.h"

namespace tessaro {

/// The content of the main window: accounts, Pages and inbox side by side above the footer bar.
/// Owns the two list models for its whole life.
class MainSplitView : public Gtk::Box {
public:
    MainSplitView(const ScreenContext& context, SupportClient& support);

    AccountsViewModel& accountsVM() { return accountsVM_; }
    PagesViewModel& pagesVM() { return pagesVM_; }
    InboxColumn& inbox() { return inbox_; }

protected:
    void on_map() override;

private:
    /// Tells the log what the program runs on.
    Task<void> report(const Engine* engine);
    /// Moves the focus to the next of accounts, Pages, inbox and footer that can have it.
    void walkAreas(bool isForward);
    void showFullScreen(bool isFullScreen);

    const ScreenContext& context_;
    AccountsViewModel accountsVM_;
    PagesViewModel pagesVM_;
    Gtk::Box columns_;
    AccountSidebar accounts_;
    PageListView pages_;
    InboxColumn inbox_;
    FooterBar footer_;
    PageSelection selection_;
    ScopedConnection accountChanged_;
    ScopedConnection firstFrame_;
    ScopedConnection engineLoaded_;
    bool isReported_ = false; ///< Whether report() has run.
    Lifetime lifetime_;
};

} // namespace tessaro
