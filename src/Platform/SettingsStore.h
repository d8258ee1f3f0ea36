#pragma once

#include "Platform/GHandle.h"

#include <filesystem>
#include <mutex>
#include <optional>
#include <string>

namespace tessaro {

/// Small texts by key, kept in the group [settings] of one key file. Any thread.
///
/// The file is read once, at construction, and replaced as a whole at each change. Groups and keys
/// that the program does not know survive. No error is reported: a value that cannot be read is
/// absent, and one that cannot be written stays in memory. A file that could not be read or parsed
/// is set aside before the first change replaces it.
class SettingsStore {
public:
    explicit SettingsStore(std::filesystem::path file);

    static SettingsStore& shared();

    std::optional<std::string> text(const std::string& key) const;
    void setText(const std::string& key, const std::string& value);

private:
    const std::filesystem::path file_;
    mutable std::mutex mutex_;
    GKeyFilePtr values_;
    bool setAsideFirst_ = false;
};

} // namespace tessaro
