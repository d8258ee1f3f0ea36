#pragma once

#include "Platform/NotificationCenter.h"
#include "Services/DataStore.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <future>

namespace tessaro::test {

/// Stands in for the user's keyring. It records which entries are deleted.
class RecordingKeychain final : public KeychainService {
public:
    explicit RecordingKeychain(AppLogger& logger) : KeychainService(nobody_, logger) {}

    bool remove(const std::string& key) override {
        if (slowness.valid())
            slowness.wait_for(std::chrono::seconds(1));
        removed.push_back(key);
        return true;
    }

    std::vector<std::string> removed; ///< The keys, in the order of their deletion.
    /// When it is set, each deletion waits until this is ready, at most a second.
    std::shared_future<void> slowness;

private:
    SecretStore nobody_; ///< Never called: this class answers itself.
};

/// A data store with everything that it needs, in private folders.
struct StoreWorld {
    TempFolder folder;
    ManualClock clock;
    NotificationCenter notifications;
    SettingsStore settings{folder / "config" / "settings.ini"};
    DeviceIdentity device{settings, folder / "machine-id"};
    AppLogger logger{folder / "logs", device, clock};
    RecordingKeychain keychain{logger};
    std::filesystem::path records = folder / "Tessaro";
    DataStore store = newStore();

    /// Another store over the same files, as after a new start of the program.
    DataStore newStore() { return {records, keychain, notifications, clock}; }
    /// The text of today's log; a message when there is none.
    std::string loggedLines() {
        logger.flush(std::chrono::seconds(10));
        return logger.readCurrentLog();
    }
};

inline Account makeAccount(const std::string& name = "Tài khoản") {
    return {
        .id = AccountId::random(),
        .name = name,
        .deviceId = "device",
        .deviceName = "computer",
        .createdAt = TimePoint(std::chrono::seconds(1'740'821'405)),
    };
}

/// The account with a proxy at that port of this computer.
inline Account proxiedBy(std::int64_t port, Account account = makeAccount()) {
    account.proxyEnabled = true;
    account.proxyHost = "127.0.0.1";
    account.proxyPort = port;
    return account;
}

inline PageConfig
makePage(const Account& account, const std::string& pageId, const std::string& name = "Trang") {
    return {
        .id = PageConfigId::random(),
        .accountId = account.id,
        .pageToken = SecretText("token-of-" + pageId),
        .pageId = PageId{pageId},
        .pageName = name,
        .createdAt = TimePoint(std::chrono::seconds(1'740'821'405)),
    };
}

} // namespace tessaro::test
