#pragma once

#include "Platform/Result.h"
#include "Platform/SecretText.h"
#include "Platform/TimePoint.h"
#include "Platform/Uuid.h"

#include <nlohmann/json_fwd.hpp>

#include <cstdint>
#include <string>

namespace tessaro {

using AccountId = Identifier<struct AccountIdTag>;

/// A login identity with its proxy and device profile. Identified, compared and hashed by `id`
/// alone, so that an edited copy is still the same account.
struct Account {
    AccountId id;
    std::string name;
    std::string proxyHost; ///< Host name or address of an HTTP proxy; empty when none is set.
    std::int64_t proxyPort = 0;
    std::string proxyUsername;
    SecretText proxyPassword;
    bool proxyEnabled = false;
    std::string deviceId;   ///< Identifier of the computer that the account was made on.
    std::string deviceName; ///< That computer's readable name.
    TimePoint createdAt;

    bool operator==(const Account& other) const { return id == other.id; }
};

/// The fields of an account that the user enters. The computer provides the rest.
struct AccountDraft {
    std::string name;
    std::string proxyHost;
    std::int64_t proxyPort = 0;
    std::string proxyUsername;
    SecretText proxyPassword;
    bool proxyEnabled = false;

    /// The account with its own values replaced by these.
    Account appliedTo(Account account) const;

    bool operator==(const AccountDraft&) const = default;
};

/// Sets every member, so that one object can be used for many records.
void to_json(nlohmann::json& object, const Account& account);
/// Every member is required and strictly typed; unknown members are ignored.
Result<Account> decodeAccount(const nlohmann::json& value);

} // namespace tessaro

template <>
struct std::hash<tessaro::Account> {
    std::size_t operator()(const tessaro::Account& account) const noexcept {
        return std::hash<tessaro::AccountId>{}(account.id);
    }
};
