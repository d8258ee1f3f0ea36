#pragma once

#include "Platform/Result.h"
#include "Platform/SecretText.h"

#include <chrono>
#include <optional>
#include <string>

namespace tessaro {

/// The user's Secret Service (the freedesktop.org Secret Service API), through libsecret.
///
/// Every call is synchronous. It never shows a prompt, and it fails when the service does not
/// answer in time. An error has the domain "SecretStore" and the code of libsecret or GIO. Any
/// thread.
class SecretStore {
public:
    /// @param deadline  how long one call may take before it is given up
    explicit SecretStore(std::chrono::milliseconds deadline = std::chrono::seconds(3));
    virtual ~SecretStore() = default;

    /// Adds an entry to the default keyring, or replaces the one that is there; a locked keyring is
    /// an error.
    virtual Result<void>
    store(const std::string& service, const std::string& account, const SecretText& value);
    /// The value bytes of one entry; "nothing matched" is an empty optional, not an error.
    virtual Result<std::optional<SecretText>>
    lookup(const std::string& service, const std::string& account);
    /// Deletes every entry that matches; true when there was one, false when nothing matched. One
    /// that is locked stays and makes an error.
    virtual Result<bool> clear(const std::string& service, const std::string& account);

private:
    const std::chrono::milliseconds deadline_;
};

} // namespace tessaro
