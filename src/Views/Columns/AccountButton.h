#pragma once

#include "Models/Account.h"
#include "Views/Columns/RecordColumn.h"

#include <gtkmm/label.h>

namespace tessaro {

/// One account in the account column: the first character of its name on a disc, and an orange dot
/// while its proxy is switched on. The disc has the accent when the account is selected, and the
/// accent's tint otherwise.
class AccountButton : public RecordButton<Account> {
public:
    AccountButton();

    void show(const Account& account) override;

private:
    Gtk::Label initial_;
};

} // namespace tessaro
