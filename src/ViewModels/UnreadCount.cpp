#include "ViewModels/UnreadCount.h"

#include "Platform/Text.h"

#include <regex>

namespace tessaro {

UnreadCount UnreadCount::atHead(std::string_view title) {
    static const std::regex form(R"(\(([1-9][0-9]{0,5})(\+?)\)(?: .*)?)");
    // The count is in the first bytes, but a title can have any length.
    const std::string head = trimBlanks(title.substr(0, 64));
    std::smatch match;
    if (!std::regex_match(head, match, form))
        return {};
    return {.number = std::stoi(match.str(1)), .isAtLeast = match.length(2) > 0};
}

std::string UnreadCount::text() const {
    return number ? std::to_string(number) + (isAtLeast ? "+" : "") : "";
}

} // namespace tessaro
