#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace tessaro {

/// A path in the folder at which nothing lies yet, for a file that came with a name from elsewhere:
/// that name, or with a number behind it, "order (1).pdf". Slashes become underscores. A name that
/// file systems find too long loses the end of what stands before its extension.
///
/// @param reserved  paths that are not free either
std::filesystem::path freeFile(
    const std::filesystem::path& folder, std::string name,
    const std::set<std::filesystem::path>& reserved = {});

} // namespace tessaro
