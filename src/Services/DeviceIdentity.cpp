#include "Services/DeviceIdentity.h"

#include "Platform/FileStore.h"
#include "Platform/Text.h"
#include "Platform/Uuid.h"

#include <utility>

namespace tessaro {

namespace {

constexpr const char* fallbackKey = "SkarnDeviceUUID";

/// The identifier in the file; empty when there is none. During the first boot of a system the file
/// can say "uninitialized" (machine-id(5)).
std::string readIdentifier(const std::filesystem::path& file) {
    const auto text = readFile(file).value_or("");
    const auto identifier = trimWhitespaceAndNewlines(text);
    return isValidUtf8(identifier) && identifier != "uninitialized" ? identifier : std::string();
}

} // namespace

DeviceIdentity::DeviceIdentity(SettingsStore& settings, std::filesystem::path identifierFile)
    : settings_(settings), identifierFile_(std::move(identifierFile)) {}

const DeviceIdentity& DeviceIdentity::shared() {
    static const DeviceIdentity identity(SettingsStore::shared());
    return identity;
}

std::string DeviceIdentity::getDeviceUUID() const {
    if (auto identifier = readIdentifier(identifierFile_); !identifier.empty())
        return identifier;
    const std::lock_guard lock(mutex_);
    if (auto remembered = settings_.text(fallbackKey))
        return *remembered;
    const auto fallback = Uuid::random().text();
    settings_.setText(fallbackKey, fallback);
    return fallback;
}

std::string DeviceIdentity::deviceName() const {
    const auto name = machine::prettyName();
    return name.empty() ? machine::hostName() : name;
}

} // namespace tessaro
