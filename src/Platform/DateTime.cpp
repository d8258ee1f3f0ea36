#include "Platform/DateTime.h"

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

unsigned readNumber(std::string_view text, std::size_t at, std::size_t digits) {
    unsigned value = 0;
    for (const char digit : text.substr(at, digits))
        value = value * 10 + static_cast<unsigned>(digit - '0');
    return value;
}

void writeNumber(std::string& text, std::size_t at, std::size_t digits, long value) {
    for (; digits > 0; value /= 10)
        text[at + --digits] = static_cast<char>('0' + value % 10);
}

} // namespace

std::string formatDateTime(TimePoint time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(std::chrono::floor<std::chrono::seconds>(time - day));
    std::string text(form);
    writeNumber(text, 0, 4, static_cast<int>(date.year()));
    writeNumber(text, 5, 2, static_cast<unsigned>(date.month()));
    writeNumber(text, 8, 2, static_cast<unsigned>(date.day()));
    writeNumber(text, 11, 2, clock.hours().count());
    writeNumber(text, 14, 2, clock.minutes().count());
    writeNumber(text, 17, 2, clock.seconds().count());
    return text;
}

std::optional<TimePoint> parseDateTime(std::string_view text) {
    if (!hasForm(text))
        return std::nullopt;
    const std::chrono::year_month_day date(
        std::chrono::year(static_cast<int>(readNumber(text, 0, 4))),
        std::chrono::month(readNumber(text, 5, 2)), std::chrono::day(readNumber(text, 8, 2)));
    const auto hours = readNumber(text, 11, 2);
    const auto minutes = readNumber(text, 14, 2);
    const auto seconds = readNumber(text, 17, 2);
    if (!date.ok() || hours > 23 || minutes > 59 || seconds > 59)
        return std::nullopt;
    return std::chrono::sys_days(date) + std::chrono::hours(hours) + std::chrono::minutes(minutes) +
           std::chrono::seconds(seconds);
}

} // namespace tessaro
