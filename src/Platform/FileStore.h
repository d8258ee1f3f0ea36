#pragma once

#include "Platform/Result.h"
#include "Platform/TimePoint.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Whole files of the user, readable by nobody else. Any thread.
namespace tessaro {

/// Creates the folder with its missing parents, mode 0700 whatever the umask. An existing folder
/// is left alone. Fails with domain "File" and errno as code, like everything here.
Result<void> ensureFolder(const std::filesystem::path& folder);

/// The bytes of the whole file; nothing when it is missing or unreadable.
std::optional<std::string> readFile(const std::filesystem::path& file);

/// What a replaced file outlasts.
enum class Durability {
    powerCut, ///< Waits until the disk has everything.
    crash,    ///< Waits for no disk; a power cut may leave an empty file.
};

/// Replaces the file as a whole, mode 0600 whatever the umask and its mode before: what it outlasts
/// leaves the old bytes or the new ones, at whatever moment it comes. Its folder must exist.
Result<void> replaceFile(
    const std::filesystem::path& file, std::string_view bytes,
    Durability durability = Durability::powerCut);

/// Renames the file to its name, ".unreadable-" and the time in UTC, and never over another file.
/// One that is not there counts as set aside.
Result<void> setAside(const std::filesystem::path& file, TimePoint time);

/// Keeps other processes away from the folder, which is made when needed, for as long as the result
/// lives and this process does; a file ".lock" in it carries the lock. Null when another process
/// has it and keeps it for as long as `patience`. Where nothing can be locked, as on a read-only
/// file system, nothing is kept away.
std::shared_ptr<void>
lockFolder(const std::filesystem::path& folder, std::chrono::milliseconds patience);

/// Takes group and others out of the modes of the folder and of what lies directly in it, links
/// left alone, and removes the temporary files that a crash during replaceFile() left there.
void makePrivate(const std::filesystem::path& folder);

} // namespace tessaro
