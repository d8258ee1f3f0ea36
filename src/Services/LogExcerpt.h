#pragma once

#include <string>

namespace tessaro {

/// What is sent of a day's log: the whole text up to 50,000 characters, else its last 200 lines
/// behind the marker "[...truncated...]". Always valid UTF-8.
std::string logExcerpt(const std::string& log);

} // namespace tessaro
