#pragma once

#include "Models/Account.h"
#include "Views/Columns/RecordColumn.h"

#include <gtkmm/label.h>

namespace tessaro {

/// One account in the account column: the first character of its name on a disc of the accent or
/// its tint, and an orange dot while the account's proxy is switched on.
class AccountButton : public RecordButton<Account> {
public:
    AccountButton();

    void show(const Account& account) override;

private:
    Gtk::Label initial_;
};

} // namespace tessaro
