#include "Platform/SettingsStore.h"

#include "Platform/Clock.h"
#include "Platform/FileStore.h"
#include "Platform/Paths.h"

namespace tessaro {

namespace {

constexpr const char* group = "settings";

} // namespace

SettingsStore::SettingsStore(std::filesystem::path file)
    : file_(std::move(file)), values_(g_key_file_new()) {
    makePrivate(file_.parent_path());
    const auto bytes = readFile(file_);
    setAsideFirst_ =
        !bytes ||
        !g_key_file_load_from_data(
            values_.get(), bytes->data(), bytes->size(),
            static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS),
            nullptr);
}

SettingsStore& SettingsStore::shared() {
    static SettingsStore store(paths::settingsFile());
    return store;
}

std::optional<std::string> SettingsStore::text(const std::string& key) const {
    const std::lock_guard lock(mutex_);
    const GCharPtr value(g_key_file_get_string(values_.get(), group, key.c_str(), nullptr));
    if (!value)
        return std::nullopt;
    return value.get();
}

void SettingsStore::setText(const std::string& key, const std::string& value) {
    const std::lock_guard lock(mutex_);
    g_key_file_set_string(values_.get(), group, key.c_str(), value.c_str());
    ensureFolder(file_.parent_path());
    if (setAsideFirst_ && !setAside(file_, SystemClock::shared().now()))
        return;
    setAsideFirst_ = false;
    gsize size = 0;
    const GCharPtr bytes(g_key_file_to_data(values_.get(), &size, nullptr));
    replaceFile(file_, {bytes.get(), size});
}

} // namespace tessaro
