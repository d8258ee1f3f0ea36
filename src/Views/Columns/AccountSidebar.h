#pragma once

#include "ViewModels/AccountsViewModel.h"
#include "Views/Columns/RecordColumn.h"
#include "Views/Columns/SidebarControls.h"
#include "Views/ScreenContext.h"
#include "Views/Sheets/DialogPresenter.h"

#include <gtkmm/box.h>

namespace tessaro {

/// The left-most column of the main window: the accounts above the controls. UI thread only.
class AccountSidebar : public Gtk::Box {
public:
    /// @param context, viewModel  outlive this
    AccountSidebar(const ScreenContext& context, AccountsViewModel& viewModel);

private:
    RecordColumn<Account>::Behaviour columnBehaviour();
    /// @param edited  the account to edit; nothing for a new account
    void openSheet(const std::optional<Account>& edited);

    const ScreenContext& context_;
    AccountsViewModel& viewModel_;
    RecordColumn<Account> column_;
    SidebarControls controls_;
    DialogPresenter sheets_;
};

} // namespace tessaro
