#pragma once

#include "Engine/WebViewReserve.h"

#include "Platform/Lifetime.h"
#include "ViewModels/PagesViewModel.h"
#include "Views/Inbox/DownloadBar.h"
#include "Views/Inbox/InboxContainerView.h"
#include "Views/Inbox/InboxHint.h"

#include <memory>

namespace tessaro {

/// The right-hand column of the main window: an inbox, or a hint to choose a Page, above the
/// downloads. While there are Pages to choose from, a browser is kept ready. UI thread only.
class InboxColumn : public Gtk::Box {
public:
    /// @param context, accountsVM, pagesVM  outlive this
    InboxColumn(
        const ScreenContext& context, const AccountsViewModel& accountsVM,
        const PagesViewModel& pagesVM);

    /// Shows the inbox of that Page in the browser that is there, without asking what it shows.
    /// Without a Page the browser goes, and the hint takes its place.
    void showPage(const std::optional<PageConfig>& page, const std::optional<Account>& account);
    /// The Page whose inbox is shown; null while the hint is.
    const PageConfig* shownPage() const { return inbox_ ? &inbox_->pageConfig() : nullptr; }
    /// Asks the page that is shown whether it may be left; `answered` may be called at once.
    void requestLeave(std::function<void(bool mayLeave)> answered);
    /// Asks whether the window may close: the person, while a file is on its way, and the page.
    void requestClose(std::function<void(bool mayClose)> answered);

private:
    void showFullScreen(bool isFullScreen);
    void prepareBrowser();

    const ScreenContext& context_;
    const PagesViewModel& pagesVM_;
    InboxHint hint_;
    DownloadBar downloads_;
    WebViewReserve browsers_;
    std::unique_ptr<InboxContainerView> inbox_; ///< Exists while a Page is shown.
    ScopedConnection pagesChanged_;
    ScopedConnection browserTimer_;
    Lifetime lifetime_;
};

} // namespace tessaro
