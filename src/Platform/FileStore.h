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

/// Creates the folder and its missing parents with the mode 0700, whatever the umask. An existing
/// folder stays as it is. Every error here has the domain "File" and errno as its code.
Result<void> ensureFolder(const std::filesystem::path& folder);

/// The bytes of the whole file; nothing when it is missing or unreadable.
std::optional<std::string> readFile(const std::filesystem::path& file);

/// Which failure a replaced file survives.
enum class Durability {
    powerCut, ///< Waits until the disk has everything.
    crash,    ///< Waits for no disk; a power cut may leave an empty file.
};

/// Replaces the whole file, whose mode becomes 0600. A failure that `durability` names leaves
/// either the old bytes or the new ones, whenever it comes. The file's folder must exist.
Result<void> replaceFile(
    const std::filesystem::path& file, std::string_view bytes,
    Durability durability = Durability::powerCut);

/// Renames the file to its name, ".unreadable-" and the time in UTC. It never replaces another
/// file. Succeeds when there is no file.
Result<void> setAside(const std::filesystem::path& file, TimePoint time);

/// Locks the folder against other processes until the result is dropped or this process ends. A
/// missing folder is made; the lock is on a file ".lock" in it. Returns null when another process
/// holds the lock for as long as `patience`. Where locking is impossible, as on a read-only file
/// system, it succeeds without a lock.
std::shared_ptr<void>
lockFolder(const std::filesystem::path& folder, std::chrono::milliseconds patience);

/// Removes the rights of group and others from the folder and the files directly in it, but not
/// from links. Deletes the temporary files that a crash during replaceFile() left there.
void makePrivate(const std::filesystem::path& folder);

} // namespace tessaro
