#pragma once

#include <filesystem>

/// Where the program keeps things, by the XDG Base Directory rules. Read from the environment at
/// each call.
namespace tessaro::paths {

std::filesystem::path dataFolder();     ///< Records, avatars and logs: "$XDG_DATA_HOME/Tessaro".
std::filesystem::path webDataFolder();  ///< The browser's cookies and storage, below dataFolder().
std::filesystem::path webCacheFolder(); ///< "$XDG_CACHE_HOME/Tessaro/web".
std::filesystem::path settingsFile();   ///< "$XDG_CONFIG_HOME/Tessaro/settings.ini".

} // namespace tessaro::paths
