#pragma once

#include "Platform/Result.h"

#include <nlohmann/json_fwd.hpp>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessaro {

/// A customer's contact card. Compared and hashed by all of its fields.
struct CustomerProfile {
    std::string id; ///< Any text.
    std::optional<std::string> name;
    std::optional<std::string> phone;
    std::optional<std::string> email;
    std::optional<std::string> birthday; ///< As the customer writes it, in any form.
    std::optional<std::string> address;
    std::optional<std::string> notes;
    std::optional<std::vector<std::string>> tags;

    bool operator==(const CustomerProfile&) const = default;
};

/// An absent field has no member.
void to_json(nlohmann::json& object, const CustomerProfile& profile);
/// Only "id" is required; every other member may be missing or null.
Result<CustomerProfile> decodeCustomerProfile(const nlohmann::json& value);

} // namespace tessaro

template <>
struct std::hash<tessaro::CustomerProfile> {
    std::size_t operator()(const tessaro::CustomerProfile& profile) const noexcept;
};
