#pragma once

#include <filesystem>
#include <string>

/// Facts about this computer, read from the system. Any thread.
namespace tessaro::machine {

/// The machine identifier file of the system (machine-id(5)).
inline constexpr const char* identifierFile = "/etc/machine-id";

/// The file with the name that the user gave this computer (machine-info(5)).
inline constexpr const char* informationFile = "/etc/machine-info";

/// The name that the user gave this computer, read from `file`; empty when there is none.
std::string prettyName(const std::filesystem::path& file = informationFile);

/// Whether the program runs in a confined package (flatpak-metadata(5)), which has the file
/// `marker`.
inline bool isConfined(const std::filesystem::path& marker = "/.flatpak-info") {
    std::error_code ignored;
    return std::filesystem::exists(marker, ignored);
}

/// The network host name.
std::string hostName();

} // namespace tessaro::machine
