#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace tessaro {

/// A path in the folder at which no file exists yet. The file name is `name`, or `name` with a
/// number, "order (1).pdf". Slashes become underscores. A name that is too long for file systems is
/// cut before its extension.
///
/// @param reserved  paths that count as taken
std::filesystem::path freeFile(
    const std::filesystem::path& folder, std::string name,
    const std::set<std::filesystem::path>& reserved = {});

} // namespace tessaro
