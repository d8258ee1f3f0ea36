#pragma once

#include "ViewModels/AccountsViewModel.h"
#include "Views/Columns/RecordColumn.h"
#include "Views/ScreenContext.h"
#include "Views/Sheets/DialogPresenter.h"
#include "Views/Widgets/SymbolButton.h"

#include <gtkmm/box.h>
#include <gtkmm/popover.h>

namespace tessaro {

/// The left-most column of the main window. It holds the accounts, the commands for the inbox
/// browser and the buttons for the appearance. UI thread only.
class AccountSidebar : public Gtk::Box {
public:
    /// @param context, viewModel  outlive this
    AccountSidebar(const ScreenContext& context, AccountsViewModel& viewModel);
    ~AccountSidebar() override;

private:
    RecordColumn<Account>::Behaviour columnBehaviour();
    void addCommand(const char* symbol, const char* tooltip, const char* notification);
    void addDivider();
    void showToggleSymbol();
    /// @param edited  the account to edit; nothing for a new account
    void openSheet(const std::optional<Account>& edited);

    const ScreenContext& context_;
    AccountsViewModel& viewModel_;
    RecordColumn<Account> column_;
    SymbolButton themeToggle_;
    SymbolButton themeSettings_;
    Gtk::Popover themePopover_;
    DialogPresenter sheets_;
    std::vector<ScopedConnection> connections_;
};

} // namespace tessaro
