#pragma once

#include "Platform/SecretStore.h"
#include "Services/AppLogger.h"

#include <optional>
#include <string>

namespace tessaro {

/// Short secret texts by key in the user's keyring, all under one service name. Synchronous; any
/// thread. Only a failed save is logged.
class KeychainService {
public:
    static constexpr const char* sharedServiceName = "com.vandel.Tessaro";

    KeychainService(SecretStore& store, AppLogger& logger, std::string service = sharedServiceName);
    virtual ~KeychainService() = default;

    static KeychainService& shared();

    /// Replaces the value under the key; true when it was stored.
    bool save(const std::string& key, const SecretText& value);
    /// The value; nothing when there is none, it cannot be read or it is not UTF-8.
    std::optional<SecretText> load(const std::string& key);
    /// True when the entry was deleted or did not exist.
    virtual bool remove(const std::string& key);

private:
    SecretStore& store_;
    AppLogger& logger_;
    const std::string service_;
};

} // namespace tessaro
