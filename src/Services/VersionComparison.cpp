#include "Services/VersionComparison.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <vector>

namespace tessaro {

namespace {

std::optional<std::int64_t> wholeNumber(std::string_view piece) {
    // std::from_chars knows the minus sign only.
    if (piece.starts_with('+') && !piece.starts_with("+-"))
        piece.remove_prefix(1);
    std::int64_t number = 0;
    const char* const end = piece.data() + piece.size();
    const auto [stop, error] = std::from_chars(piece.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

std::vector<std::int64_t> numbers(std::string_view version) {
    std::vector<std::int64_t> result;
    while (!version.empty()) {
        const auto dot = std::min(version.find('.'), version.size());
        if (const auto number = wholeNumber(version.substr(0, dot)))
            result.push_back(*number);
        version.remove_prefix(std::min(dot + 1, version.size()));
    }
    return result;
}

} // namespace

bool isNewerVersion(std::string_view latest, std::string_view current) {
    auto offered = numbers(latest);
    auto installed = numbers(current);
    const auto positions = std::max(offered.size(), installed.size());
    offered.resize(positions, 0);
    installed.resize(positions, 0);
    return offered > installed;
}

} // namespace tessaro
