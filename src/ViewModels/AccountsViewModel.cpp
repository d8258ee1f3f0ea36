#include "ViewModels/AccountsViewModel.h"

#include <algorithm>
#include <utility>

namespace tessaro {

AccountsViewModel::AccountsViewModel(
    DataStore& store, const DeviceIdentity& device, const Clock& clock)
    : store_(store), device_(device), clock_(clock) {
    loadAccounts();
}

void AccountsViewModel::loadAccounts() {
    accounts.set(store_.loadAccounts());
    if (!*selectedAccount)
        return;
    const auto found = std::ranges::find(*accounts, **selectedAccount);
    selectedAccount.set(found == accounts->end() ? std::nullopt : std::optional(*found));
}

void AccountsViewModel::addAccount(AccountDraft draft) {
    auto list = store_.loadAccounts();
    if (draft.name.empty())
        draft.name = "Tài khoản " + std::to_string(list.size() + 1);
    const auto account = draft.appliedTo({
        .id = AccountId::random(),
        .deviceId = device_.getDeviceUUID(),
        .deviceName = device_.deviceName(),
        .createdAt = clock_.now(),
    });
    list.push_back(account);
    save(std::move(list));
    selectedAccount.set(account);
}

void AccountsViewModel::updateAccount(const Account& account) {
    auto list = store_.loadAccounts();
    const auto found = std::ranges::find(list, account);
    if (found == list.end())
        return;
    *found = account;
    save(std::move(list));
    if (*selectedAccount == account)
        selectedAccount.set(account);
}

void AccountsViewModel::save(std::vector<Account> list) {
    store_.saveAccounts(list);
    accounts.set(std::move(list));
}

void AccountsViewModel::deleteAccount(const Account& account) {
    // A copy, because the argument may be an entry of the list that is replaced.
    const Account deleted = account;
    store_.deleteAccount(deleted.id);
    accounts.set(store_.loadAccounts());
    if (*selectedAccount == deleted)
        selectedAccount.set(accounts->empty() ? std::nullopt : std::optional(accounts->front()));
}

void AccountsViewModel::selectAccount(const Account& account) {
    selectedAccount.set(account);
}

} // namespace tessaro
