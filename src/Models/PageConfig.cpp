#include "Models/PageConfig.h"

#include "Models/RecordFields.h"

namespace tessaro {

nlohmann::json encode(const PageConfig& page) {
    return {
        {"id", page.id.text()},
        {"accountId", page.accountId.text()},
        {"pageToken", page.pageToken.reveal()},
        {"pageId", page.pageId.text},
        {"pageName", page.pageName},
        {"pageAvatarUrl", page.pageAvatarUrl},
        {"isConnected", page.isConnected},
        {"createdAt", formatDateTime(page.createdAt)},
    };
}

Result<PageConfig> decodePageConfig(const nlohmann::json& value) {
    JsonReader reader(value);
    PageConfig page{
        .id = readIdentifier<PageConfigId>(reader, "id"),
        .accountId = readIdentifier<AccountId>(reader, "accountId"),
        .pageToken = SecretText(reader.text("pageToken")),
        .pageId = PageId{reader.text("pageId")},
        .pageName = reader.text("pageName"),
        .pageAvatarUrl = reader.text("pageAvatarUrl"),
        .isConnected = reader.boolean("isConnected"),
        .createdAt = readDateTime(reader, "createdAt"),
    };
    return reader.finish(std::move(page));
}

} // namespace tessaro
