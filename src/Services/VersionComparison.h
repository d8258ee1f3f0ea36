#pragma once

#include <string_view>

namespace tessaro {

/// Whether version `latest` comes after `current`. Versions are compared number by number between
/// their dots, a missing number counting as 0. A piece that is no whole number of 64 bits is left
/// out, so that the pieces after it move up: "v1.3.0" reads as 3.0.
bool isNewerVersion(std::string_view latest, std::string_view current);

} // namespace tessaro
