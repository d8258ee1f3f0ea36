#pragma once

#include "Models/Account.h"
#include "Models/PageId.h"

namespace tessaro {

using PageConfigId = Identifier<struct PageConfigIdTag>;

/// A Facebook Page connected under one account. Identified, compared and hashed by `id` alone.
struct PageConfig {
    PageConfigId id; ///< Of this connection, not Facebook's identifier of the Page.
    AccountId accountId;
    SecretText pageToken;
    PageId pageId;
    std::string pageName;
    std::string pageAvatarUrl; ///< Web address of the picture; may be empty.
    bool isConnected = true;
    TimePoint createdAt;

    bool operator==(const PageConfig& other) const { return id == other.id; }
};

/// Sets every member, so that one object can be used for many records.
void to_json(nlohmann::json& object, const PageConfig& page);
/// Every member is required and strictly typed; unknown members are ignored.
Result<PageConfig> decodePageConfig(const nlohmann::json& value);

} // namespace tessaro

template <>
struct std::hash<tessaro::PageConfig> {
    std::size_t operator()(const tessaro::PageConfig& page) const noexcept {
        return std::hash<tessaro::PageConfigId>{}(page.id);
    }
};
