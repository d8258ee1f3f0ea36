#pragma once

#include <compare>
#include <string>

namespace tessaro {

/// Facebook's identifier of a Page or another Graph object: a text of digits, though nothing that
/// a server sends is certain to be one.
struct PageId {
    std::string text;

    auto operator<=>(const PageId&) const = default;
};

} // namespace tessaro
