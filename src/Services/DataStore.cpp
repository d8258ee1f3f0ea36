#include "Services/DataStore.h"

#include "Platform/FileName.h"
#include "Platform/FileStore.h"
#include "Platform/Paths.h"

#include <algorithm>
#include <iterator>

namespace tessaro {

namespace {

std::string tokenKey(const PageConfigId& page) {
    return "page_token_" + page.text();
}

} // namespace

DataStore::DataStore(
    std::filesystem::path folder, KeychainService& keychain, NotificationCenter& notifications,
    Clock& clock)
    : folder_(std::move(folder)),
      avatars_(folder_ / "avatars"),
      keychain_(keychain),
      notifications_(notifications),
      clock_(clock),
      accounts_(folder_ / "accounts.json", decodeAccount, clock),
      pages_(folder_ / "pages.json", decodePageConfig, clock) {
    makePrivate(folder_);
    makePrivate(avatars_);
}

DataStore& DataStore::shared() {
    static DataStore store(
        paths::dataFolder(), KeychainService::shared(), NotificationCenter::shared(),
        SystemClock::shared());
    return store;
}

std::vector<Account> DataStore::loadAccounts() {
    const std::lock_guard lock(queue_);
    return accounts_.load();
}

std::optional<Account> DataStore::account(const AccountId& id) {
    const std::lock_guard lock(queue_);
    const auto& accounts = accounts_.load();
    const auto found = std::ranges::find(accounts, id, &Account::id);
    return found == accounts.end() ? std::nullopt : std::optional(*found);
}

void DataStore::saveAccounts(std::vector<Account> accounts) {
    const std::lock_guard lock(queue_);
    accounts_.save(std::move(accounts));
}

std::vector<PageConfig> DataStore::loadPages() {
    const std::lock_guard lock(queue_);
    return pages_.load();
}

void DataStore::savePages(std::vector<PageConfig> pages) {
    const std::lock_guard lock(queue_);
    pages_.save(std::move(pages));
}

std::vector<PageConfig> DataStore::pages(const AccountId& account) {
    const std::lock_guard lock(queue_);
    std::vector<PageConfig> own;
    std::ranges::copy_if(pages_.load(), std::back_inserter(own), [&](const auto& page) {
        return page.accountId == account;
    });
    return own;
}

void DataStore::deleteAccount(const AccountId& id) {
    const std::lock_guard lock(queue_);
    auto accounts = accounts_.load();
    std::erase_if(accounts, [&](const auto& account) { return account.id == id; });
    accounts_.save(std::move(accounts));

    const auto pages = pages_.load();
    const auto belongs = [&](const auto& page) { return page.accountId == id; };
    auto kept = pages;
    std::erase_if(kept, belongs);
    // A list that cannot be read now may be read later; there is nothing to take from it.
    if (!pages.empty())
        pages_.save(std::move(kept));
    for (const auto& page : pages)
        if (belongs(page))
            removeSecret(tokenKey(page.id));
    removeSecret("proxy_pass_" + id.text());
}

void DataStore::deletePage(const PageConfigId& id) {
    const std::lock_guard lock(queue_);
    auto pages = pages_.load();
    std::erase_if(pages, [&](const auto& page) { return page.id == id; });
    pages_.save(std::move(pages));
    removeSecret(tokenKey(id));
}

void DataStore::removeSecret(const std::string& key) {
    deletions_.post([this, key] { keychain_.remove(key); });
}

std::filesystem::path DataStore::localAvatarURL(const std::string& id) const {
    ensureFolder(avatars_);
    return avatars_ / (fileNameFor(id) + ".jpg");
}

void DataStore::saveAvatarData(const std::string& id, std::string_view data) {
    replaceFile(localAvatarURL(id), data, Durability::crash);
    clock_.post(Clock::Delay::zero(), [&notifications = notifications_, id] {
        notifications.post(avatarDownloaded, {{"id", id}});
    });
}

} // namespace tessaro
