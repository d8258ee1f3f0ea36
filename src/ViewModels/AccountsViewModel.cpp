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

void AccountsViewModel::addAccount(
    std::string name, std::string proxyHost, std::int64_t proxyPort, std::string proxyUsername,
    SecretText proxyPassword, bool proxyEnabled) {
    auto list = *accounts;
    if (name.empty())
        name = "Tài khoản " + std::to_string(list.size() + 1);
    const Account account{
        .id = AccountId::random(),
        .name = std::move(name),
        .proxyHost = std::move(proxyHost),
        .proxyPort = proxyPort,
        .proxyUsername = std::move(proxyUsername),
        .proxyPassword = std::move(proxyPassword),
        .proxyEnabled = proxyEnabled,
        .deviceId = device_.getDeviceUUID(),
        .deviceName = device_.deviceName(),
        .createdAt = clock_.now(),
    };
    list.push_back(account);
    accounts.set(std::move(list));
    store_.saveAccounts(*accounts);
    selectedAccount.set(account);
}

void AccountsViewModel::updateAccount(const Account& account) {
    auto list = *accounts;
    const auto found = std::ranges::find(list, account);
    if (found == list.end())
        return;
    *found = account;
    accounts.set(std::move(list));
    store_.saveAccounts(*accounts);
    if (*selectedAccount == account)
        selectedAccount.set(account);
}

void AccountsViewModel::deleteAccount(const Account& account) {
    // The argument may be one of the entries that go.
    const Account deleted = account;
    auto list = *accounts;
    std::erase(list, deleted);
    accounts.set(std::move(list));
    store_.deleteAccount(deleted.id);
    if (*selectedAccount == deleted)
        selectedAccount.set(accounts->empty() ? std::nullopt : std::optional(accounts->front()));
}

void AccountsViewModel::selectAccount(const Account& account) {
    selectedAccount.set(account);
}

} // namespace tessaro
