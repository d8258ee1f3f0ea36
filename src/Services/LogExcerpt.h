#pragma once

#include <string>

namespace tessaro {

/// The part of a day's log that is sent to support: the whole text if it has at most 50,000
/// characters, else "[...truncated...]" and its last 200 lines. Always valid UTF-8.
std::string logExcerpt(const std::string& log);

} // namespace tessaro
