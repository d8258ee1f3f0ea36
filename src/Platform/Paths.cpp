#include "Platform/Paths.h"

#include <glib.h>

namespace tessaro::paths {

namespace {

/// GLib's own functions remember the first answer, which a test could not change.
std::filesystem::path baseFolder(const char* variable, const char* fallbackBelowHome) {
    // The base directory rules say that a relative path is to be ignored.
    if (const char* folder = g_getenv(variable); folder && g_path_is_absolute(folder))
        return folder;
    return std::filesystem::path(g_get_home_dir()) / fallbackBelowHome;
}

} // namespace

std::filesystem::path dataFolder() {
    return baseFolder("XDG_DATA_HOME", ".local/share") / "Tessaro";
}

std::filesystem::path webDataFolder() {
    return dataFolder() / "web";
}

std::filesystem::path webCacheFolder() {
    return baseFolder("XDG_CACHE_HOME", ".cache") / "Tessaro" / "web";
}

std::filesystem::path settingsFile() {
    return baseFolder("XDG_CONFIG_HOME", ".config") / "Tessaro" / "settings.ini";
}

} // namespace tessaro::paths
