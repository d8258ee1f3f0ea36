#include "Models/PageConfig.h"

#include "Models/RecordFields.h"

namespace tessaro {

void to_json(nlohmann::json& object, const PageConfig& page) {
    object["id"] = page.id.text();
    object["accountId"] = page.accountId.text();
    object["pageToken"] = page.pageToken.reveal();
    object["pageId"] = page.pageId.text;
    object["pageName"] = page.pageName;
    object["pageAvatarUrl"] = page.pageAvatarUrl;
    object["isConnected"] = page.isConnected;
    object["createdAt"] = formatDateTime(page.createdAt);
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
