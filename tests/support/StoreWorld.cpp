#include "support/StoreWorld.h"

namespace tessaro::test {

Account makeAccount(const std::string& name) {
    return {
        .id = AccountId::random(),
        .name = name,
        .deviceId = "device",
        .deviceName = "computer",
        .createdAt = TimePoint(std::chrono::seconds(1'740'821'405)),
    };
}

PageConfig makePage(const Account& account, const std::string& pageId, const std::string& name) {
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
