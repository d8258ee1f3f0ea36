#include "Platform/FreeFile.h"

#include <glib.h>

#include <algorithm>

namespace tessaro {

namespace {

/// File systems take 255 bytes; the browser's engine needs some for the file that it writes first.
constexpr std::size_t longestName = 220;
constexpr std::size_t longestExtension = 16;

/// Without the end that is too much, at the border of a character.
std::string cut(const std::string& text, std::size_t size) {
    if (text.size() <= size)
        return text;
    return text.substr(
        0, static_cast<std::size_t>(
               g_utf8_find_prev_char(text.c_str(), text.c_str() + size + 1) - text.c_str()));
}

} // namespace

std::filesystem::path freeFile(
    const std::filesystem::path& folder, std::string name,
    const std::set<std::filesystem::path>& reserved) {
    std::ranges::replace(name, '/', '_');
    std::string extension = std::filesystem::path(name).extension().string();
    if (extension.size() > longestExtension)
        extension.clear();
    const std::string stem =
        cut(name.substr(0, name.size() - extension.size()), longestName - extension.size());
    const auto isTaken = [&](const std::filesystem::path& file) {
        // The link itself counts: to write to one that leads nowhere fails, too.
        std::error_code ignored;
        return std::filesystem::exists(std::filesystem::symlink_status(file, ignored)) ||
               reserved.contains(file);
    };
    std::filesystem::path file = folder / (stem + extension);
    for (int number = 1; isTaken(file); ++number)
        file = folder / (stem + " (" + std::to_string(number) + ")" + extension);
    return file;
}

} // namespace tessaro
