#pragma once

#include "Platform/NotificationCenter.h"
#include "Services/DataStore.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <future>

namespace tessaro::test {

/// Stands in for the user's keyring where a test only asks which entries are deleted.
class RecordingKeychain final : public KeychainService {
public:
    explicit RecordingKeychain(AppLogger& logger) : KeychainService(nobody_, logger) {}

    bool remove(const std::string& key) override {
        if (slowness.valid())
            slowness.wait_for(std::chrono::seconds(1));
        removed.push_back(key);
        return true;
    }

    std::vector<std::string> removed; ///< The keys, in the order in which they were deleted.
    /// When it is set, each deletion takes a second until this is ready.
    std::shared_future<void> slowness;

private:
    SecretStore nobody_; ///< Never called.
};

/// A data store with everything that it needs, in folders of its own.
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

    /// Another one over the same files, as after a new start of the program.
    DataStore newStore() { return {records, keychain, notifications, clock}; }
    /// What the log of today holds, or that there is none.
    std::string loggedLines() {
        logger.flush(std::chrono::seconds(10));
        return logger.readCurrentLog();
    }
};

Account makeAccount(const std::string& name = "Tài khoản");
PageConfig
makePage(const Account& account, const std::string& pageId, const std::string& name = "Trang");

} // namespace tessaro::test
