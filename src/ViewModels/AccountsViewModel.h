#pragma once

#include "Models/Account.h"
#include "Platform/Clock.h"
#include "Platform/Property.h"
#include "Services/DataStore.h"
#include "Services/DeviceIdentity.h"

#include <optional>
#include <vector>

namespace tessaro {

/// The accounts behind the account column: the list, the selection, and which dialog is open.
/// Every change is applied to the list that the store has at that moment, and saved at once. The
/// store can have accounts that could not be read before. UI thread only.
class AccountsViewModel {
public:
    /// Loads the stored accounts; none is selected.
    AccountsViewModel(DataStore& store, const DeviceIdentity& device, const Clock& clock);

    Property<std::vector<Account>> accounts;          ///< In stored order; new ones come last.
    Property<std::optional<Account>> selectedAccount; ///< A copy of the selected account.
    Property<bool> showAddSheet;                      ///< Set and cleared by the screens only.
    Property<std::optional<Account>> editingAccount;  ///< Set and cleared by the screens only.

    /// Reads the list again. The selection follows its account, or becomes empty if that is gone.
    void loadAccounts();
    /// Appends, saves and selects a new account. An empty name becomes "Tài khoản " and a number.
    void addAccount(AccountDraft draft);
    /// Replaces the account of the same id and saves; does nothing when there is none.
    void updateAccount(const Account& account);
    /// Removes the account with its Pages. If it was selected, the first remaining account becomes
    /// so.
    void deleteAccount(const Account& account);
    void selectAccount(const Account& account);

private:
    void save(std::vector<Account> list);

    DataStore& store_;
    const DeviceIdentity& device_;
    const Clock& clock_;
};

} // namespace tessaro
