#include "Platform/DateTime.h"

#include <array>
#include <cstdio>

namespace tessaro {

namespace {

constexpr std::string_view form = "0000-00-00T00:00:00Z";

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Zeros in the form stand for any digit, the rest for itself.
bool hasForm(std::string_view text) {
    if (text.size() != form.size())
        return false;
    for (std::size_t i = 0; i < form.size(); ++i)
        if (form[i] == '0' ? !isDigit(text[i]) : text[i] != form[i])
            return false;
    return true;
}

unsigned number(std::string_view digits) {
    unsigned value = 0;
    for (const char digit : digits)
        value = value * 10 + static_cast<unsigned>(digit - '0');
    return value;
}

} // namespace

std::string formatDateTime(TimePoint time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(std::chrono::floor<std::chrono::seconds>(time - day));
    std::array<char, 64> text;
    std::snprintf(
        text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
        static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
        static_cast<int>(clock.seconds().count()));
    return text.data();
}

std::optional<TimePoint> parseDateTime(std::string_view text) {
    if (!hasForm(text))
        return std::nullopt;
    const std::chrono::year_month_day date(
        std::chrono::year(static_cast<int>(number(text.substr(0, 4)))),
        std::chrono::month(number(text.substr(5, 2))), std::chrono::day(number(text.substr(8, 2))));
    const auto hours = number(text.substr(11, 2));
    const auto minutes = number(text.substr(14, 2));
    const auto seconds = number(text.substr(17, 2));
    if (!date.ok() || hours > 23 || minutes > 59 || seconds > 59)
        return std::nullopt;
    return std::chrono::sys_days(date) + std::chrono::hours(hours) + std::chrono::minutes(minutes) +
           std::chrono::seconds(seconds);
}

} // namespace tessaro
