#pragma once

#include "Engine/WebViewReserve.h"

#include "ViewModels/AccountsViewModel.h"
#include "ViewModels/PagesViewModel.h"
#include "Views/Columns/AccountSidebar.h"
#include "Views/Columns/PageListView.h"
#include "Views/Inbox/DownloadBar.h"
#include "Views/Inbox/InboxContainerView.h"
#include "Views/Inbox/InboxPlaceholder.h"
#include "Views/ScreenContext.h"

#include <gtkmm/box.h>
#include <gtkmm/separator.h>

#include <memory>

namespace tessaro {

class AppLogger;
class SupportClient;

/// The content of the main window: accounts, Pages and inbox side by side above the footer bar.
/// Owns the two list models for its whole life.
class MainSplitView : public Gtk::Box {
public:
    MainSplitView(const ScreenContext& context, AppLogger& logger, SupportClient& support);
    ~MainSplitView() override;

    AccountsViewModel& accountsVM() { return accountsVM_; }
    PagesViewModel& pagesVM() { return pagesVM_; }

    /// Asks the page of the inbox that is shown whether it may be left; `answered` may be called at
    /// once.
    void requestLeave(std::function<void(bool mayLeave)> answered);

protected:
    void on_map() override;

private:
    void layOut(AppLogger& logger, SupportClient& support);
    void followAccount();
    /// Shows the selected Page's inbox, if what is shown may be left; else selects that again.
    void followPage();
    void showDetail();
    void showFullScreen(bool isFullScreen);
    void prepareBrowser();
    void selectPage(const std::string& pageId);
    void select(PageConfig page);

    const ScreenContext& context_;
    AccountsViewModel accountsVM_;
    PagesViewModel pagesVM_;
    Gtk::Box columns_;
    AccountSidebar accounts_;
    Gtk::Separator firstDivider_;
    PageListView pages_;
    Gtk::Separator secondDivider_;
    Gtk::Box detail_;
    InboxPlaceholder placeholder_;
    DownloadBar downloads_;
    WebViewReserve browsers_; ///< Filled while Pages are shown and none is selected.
    std::unique_ptr<InboxContainerView> inbox_; ///< Exists while a Page is selected.
    std::optional<AccountId> shownAccount_;
    bool isSelecting_ = false; ///< An account, and then one of its Pages.
    ScopedConnection accountChanged_;
    ScopedConnection pageChanged_;
    ScopedConnection pagesChanged_;
    ScopedConnection browserTimer_;
    ScopedConnection firstFrame_;
    ScopedConnection inboxRequested_;
    Lifetime lifetime_;
};

} // namespace tessaro
