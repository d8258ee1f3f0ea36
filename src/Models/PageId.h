#pragma once

#include <compare>
#include <string>

namespace tessaro {

/// Facebook's identifier of a Page or another Graph object. It should be digits, but a server can
/// send any text.
struct PageId {
    std::string text;

    auto operator<=>(const PageId&) const = default;
};

} // namespace tessaro
