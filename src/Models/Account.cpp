#include "Models/Account.h"

#include "Models/RecordFields.h"

namespace tessaro {

nlohmann::json encode(const Account& account) {
    return {
        {"id", account.id.text()},
        {"name", account.name},
        {"proxyHost", account.proxyHost},
        {"proxyPort", account.proxyPort},
        {"proxyUsername", account.proxyUsername},
        {"proxyPassword", account.proxyPassword.reveal()},
        {"proxyEnabled", account.proxyEnabled},
        {"deviceId", account.deviceId},
        {"deviceName", account.deviceName},
        {"createdAt", formatDateTime(account.createdAt)},
    };
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
