#pragma once

#include "Models/Account.h"
#include "Models/PageConfig.h"
#include "Platform/Clock.h"
#include "Platform/NotificationCenter.h"
#include "Platform/WorkQueue.h"
#include "Services/KeychainService.h"
#include "Services/RecordFile.h"

#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaro {

/// The only class that reads and writes the record files. List operations run one at a time while
/// their caller waits; any thread. No error is reported: a list that cannot be read is empty, and
/// one that cannot be written stays in memory. Keyring entries are deleted in the background after
/// the lists are saved, because the keyring can be slow.
class DataStore {
public:
    /// The announcement on the UI thread after a picture was written. Its user info holds the
    /// avatar id under "id".
    static constexpr const char* avatarDownloaded = "AvatarDownloaded";

    /// @param folder         holds the record files and the folder "avatars"; made when needed
    /// @param keychain       loses the entries of deleted accounts and Pages
    /// @param notifications  carries avatarDownloaded
    /// @param clock          posts that on the UI thread; stamps files that did not decode
    DataStore(
        std::filesystem::path folder, KeychainService& keychain, NotificationCenter& notifications,
        Clock& clock);

    static DataStore& shared();

    std::vector<Account> loadAccounts();
    /// The account of that id, if there is one.
    std::optional<Account> account(const AccountId& id);
    void saveAccounts(std::vector<Account> accounts);
    /// The Pages of all accounts in stored order.
    std::vector<PageConfig> loadPages();
    /// Replaces the Pages of all accounts.
    void savePages(std::vector<PageConfig> pages);
    /// The Pages of one account in stored order.
    std::vector<PageConfig> pages(const AccountId& account);
    /// Removes the account, its Pages and their keyring entries.
    void deleteAccount(const AccountId& id);
    /// Removes one Page and its keyring entry.
    void deletePage(const PageConfigId& id);
    /// Waits for the keyring to finish its deletions, at most for `limit`.
    void finishDeletions(std::chrono::milliseconds limit) { deletions_.finish(limit); }

    /// Where the picture of that id lies or would lie: always a file directly in "avatars".
    std::filesystem::path localAvatarURL(const std::string& id) const;
    /// Writes the picture's bytes and then announces it, whether or not the write succeeded.
    void saveAvatarData(const std::string& id, std::string_view data);

private:
    void removeSecret(const std::string& key);

    const std::filesystem::path folder_;
    const std::filesystem::path avatars_;
    KeychainService& keychain_;
    NotificationCenter& notifications_;
    Clock& clock_;
    /// Held by every list operation for as long as it lasts; guards the two files.
    std::mutex queue_;
    RecordFile<Account> accounts_;
    RecordFile<PageConfig> pages_;
    WorkQueue deletions_;
};

} // namespace tessaro
