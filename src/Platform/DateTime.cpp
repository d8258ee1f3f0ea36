#include "Platform/DateTime.h"

#include <cstdio>
#include <ctime>

namespace tessaro {

std::string formatDateTime(TimePoint time) {
    const std::time_t seconds =
        std::chrono::floor<std::chrono::seconds>(time.time_since_epoch()).count();
    std::tm utc{};
    gmtime_r(&seconds, &utc);
    char text[64];
    const int length = std::snprintf(
        text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02dZ", utc.tm_year + 1900, utc.tm_mon + 1,
        utc.tm_mday, utc.tm_hour, utc.tm_min, utc.tm_sec);
    return {text, static_cast<std::size_t>(length)};
}

std::optional<TimePoint> parseDateTime(std::string_view text) {
    std::tm utc{};
    strptime(std::string(text).c_str(), "%Y-%m-%dT%H:%M:%SZ", &utc);
    const TimePoint time{std::chrono::seconds(timegm(&utc))};
    // Both functions take more forms than this one, and make the 1st of March of a 29th of February
    // that does not exist.
    return formatDateTime(time) == text ? std::optional(time) : std::nullopt;
}

} // namespace tessaro
