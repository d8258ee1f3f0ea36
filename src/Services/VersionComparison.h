#pragma once

#include <string_view>

namespace tessaro {

/// Whether version `latest` comes after `current`. The numbers between the dots are compared one by
/// one; a missing number counts as 0. A piece that is no whole number of 64 bits is skipped, so
/// that "v1.3.0" reads as 3.0.
bool isNewerVersion(std::string_view latest, std::string_view current);

} // namespace tessaro
