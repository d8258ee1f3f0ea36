#include "Models/Account.h"

#include "Models/RecordFields.h"

namespace tessaro {

Account AccountDraft::appliedTo(Account account) const {
    account.name = name;
    account.proxyHost = proxyHost;
    account.proxyPort = proxyPort;
    account.proxyUsername = proxyUsername;
    account.proxyPassword = proxyPassword;
    account.proxyEnabled = proxyEnabled;
    return account;
}

void to_json(nlohmann::json& object, const Account& account) {
    object["id"] = account.id.text();
    object["name"] = account.name;
    object["proxyHost"] = account.proxyHost;
    object["proxyPort"] = account.proxyPort;
    object["proxyUsername"] = account.proxyUsername;
    object["proxyPassword"] = account.proxyPassword.reveal();
    object["proxyEnabled"] = account.proxyEnabled;
    object["deviceId"] = account.deviceId;
    object["deviceName"] = account.deviceName;
    object["createdAt"] = formatDateTime(account.createdAt);
}

Result<Account> decodeAccount(const nlohmann::json& value) {
    JsonReader reader(value);
    Account account{
        .id = readIdentifier<AccountId>(reader, "id"),
        .name = reader.text("name"),
        .proxyHost = reader.text("proxyHost"),
        .proxyPort = reader.integer("proxyPort"),
        .proxyUsername = reader.text("proxyUsername"),
        .proxyPassword = SecretText(reader.text("proxyPassword")),
        .proxyEnabled = reader.boolean("proxyEnabled"),
        .deviceId = reader.text("deviceId"),
        .deviceName = reader.text("deviceName"),
        .createdAt = readDateTime(reader, "createdAt"),
    };
    return reader.finish(std::move(account));
}

} // namespace tessaro
