#pragma once

#include <string>
#include <string_view>

namespace tessaro {

/// How much of a Page's inbox the site counts as unread.
struct UnreadCount {
    int number = 0;
    bool isAtLeast = false; ///< There may be more than the number.

    /// The count at the beginning of a web page's title: 3 of "(3) Inbox", at least 20 of
    /// "(20+) Inbox". It has one to six digits and does not begin with a zero. Zero for a title
    /// without a count.
    static UnreadCount atHead(std::string_view title);

    /// As the site writes it ("3", "20+"); empty for zero.
    std::string text() const;
};

} // namespace tessaro
