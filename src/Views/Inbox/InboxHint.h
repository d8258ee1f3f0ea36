#pragma once

#include "ViewModels/AccountsViewModel.h"
#include "ViewModels/PagesViewModel.h"
#include "Views/ScreenContext.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>

namespace tessaro {

/// Stands in the inbox's place while no Page is selected. Whoever has no account, or an account
/// without a Page, finds the first step here. UI thread only.
class InboxHint : public Gtk::Box {
public:
    /// @param context, accountsVM, pagesVM  outlive this
    InboxHint(
        const ScreenContext& context, const AccountsViewModel& accountsVM,
        const PagesViewModel& pagesVM);

private:
    void showStep();

    const ScreenContext& context_;
    const AccountsViewModel& accountsVM_;
    const PagesViewModel& pagesVM_;
    Gtk::Button step_;
    ScopedConnection accountsChanged_, accountChanged_, pagesChanged_;
};

} // namespace tessaro
