#pragma once

#include "Models/Account.h"
#include "Views/Columns/AccountFace.h"
#include "Views/Columns/RecordColumn.h"

namespace tessaro {

/// One account in the account column.
class AccountButton : public RecordButton<Account> {
public:
    AccountButton();

    void show(const Account& account) override;
    void setSelected(bool selected) override;
    const AccountFace& face() const { return face_; }

private:
    AccountFace face_;
};

} // namespace tessaro
