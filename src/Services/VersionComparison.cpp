#include "Services/VersionComparison.h"

#include "Platform/Text.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace tessaro {

namespace {

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
