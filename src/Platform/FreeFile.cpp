#include "Platform/FreeFile.h"

#include <glib.h>

#include <algorithm>

namespace tessaro {

namespace {

/// File systems allow 255 bytes. The browser's engine adds some for its temporary file.
constexpr std::size_t longestName = 220;
constexpr std::size_t longestExtension = 16;

/// The beginning of the text, at most `size` bytes, cut between two characters.
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
        // A link that leads nowhere counts as well, because writing to it fails.
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
