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
/// Every change is made to what the store holds at that moment, which can be more than what could
/// be read before, and is saved at once. UI thread only.
class AccountsViewModel {
public:
    /// Loads the stored accounts; none is selected.
    AccountsViewModel(DataStore& store, const DeviceIdentity& device, const Clock& clock);

    Property<std::vector<Account>> accounts;          ///< In stored order; new ones come last.
    Property<std::optional<Account>> selectedAccount; ///< A copy of the selected account.
    Property<bool> showAddSheet;                      ///< Set and cleared by the screens only.
    Property<std::optional<Account>> editingAccount;  ///< Set and cleared by the screens only.

    /// Reads the list again; the selection follows its account or becomes empty.
    void loadAccounts();
    /// Appends, saves and selects a new account. An empty name becomes "Tài khoản " and a number.
    void addAccount(AccountDraft draft);
    /// Replaces the account of the same id and saves; does nothing when there is none.
    void updateAccount(const Account& account);
    /// Removes the account with its Pages; a selection that is lost goes to the first account left.
    void deleteAccount(const Account& account);
    void selectAccount(const Account& account);

private:
    void save(std::vector<Account> list);

    DataStore& store_;
    const DeviceIdentity& device_;
    const Clock& clock_;
};

} // namespace tessaro
