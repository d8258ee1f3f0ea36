#include "Services/KeychainService.h"

#include "Platform/Text.h"

#include <utility>

namespace tessaro {

KeychainService::KeychainService(SecretStore& store, AppLogger& logger, std::string service)
    : store_(store), logger_(logger), service_(std::move(service)) {}

KeychainService& KeychainService::shared() {
    static SecretStore store;
    static KeychainService keychain(store, AppLogger::shared());
    return keychain;
}

bool KeychainService::save(const std::string& key, const SecretText& value) {
    remove(key);
    const auto stored = store_.store(service_, key, value);
    if (!stored)
        logger_.log(
            "KeychainService: Lỗi lưu key '" + key + "': " + std::to_string(stored.error().code),
            "ERROR");
    return stored.has_value();
}

std::optional<SecretText> KeychainService::load(const std::string& key) {
    auto found = store_.lookup(service_, key);
    if (!found || !*found || !isValidUtf8((*found)->reveal()))
        return std::nullopt;
    return std::move(*found);
}

bool KeychainService::remove(const std::string& key) {
    return store_.clear(service_, key).has_value();
}

} // namespace tessaro
