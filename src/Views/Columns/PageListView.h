#pragma once

#include "ViewModels/PagesViewModel.h"
#include "Views/Columns/RecordColumn.h"
#include "Views/ScreenContext.h"
#include "Views/Sheets/DialogPresenter.h"
#include "Views/Widgets/Symbol.h"

#include <gtkmm/overlay.h>

namespace tessaro {

/// The second column of the main window: the Pages of the selected account. Without an account it
/// shows an arrow that points to the account column. UI thread only.
class PageListView : public Gtk::Overlay {
public:
    /// @param context, pagesVM  outlive this
    PageListView(const ScreenContext& context, PagesViewModel& pagesVM);

    /// The account under which Pages are added.
    void setAccount(const std::optional<Account>& account);

private:
    RecordColumn<PageConfig>::Behaviour columnBehaviour();
    void choose(int position);
    void openSheet();

    const ScreenContext& context_;
    PagesViewModel& pagesVM_;
    std::optional<Account> account_;
    RecordColumn<PageConfig> column_;
    Symbol arrow_;
    DialogPresenter sheets_;
};

} // namespace tessaro
