#include "ViewModels/TitleCount.h"

#include "Platform/Text.h"

#include <regex>

namespace tessaro {

std::string countAtHead(std::string_view title) {
    static const std::regex form(R"(\(([1-9][0-9]{0,5}\+?)\)(?: .*)?)");
    // The count is in the first bytes, but a title can have any length.
    const std::string head = trimBlanks(title.substr(0, 64));
    std::smatch match;
    return std::regex_match(head, match, form) ? match.str(1) : std::string();
}

} // namespace tessaro
