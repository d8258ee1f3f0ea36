#pragma once

#include <string>
#include <string_view>

namespace tessaro {

/// The count at the beginning of a web page's title: "3" of "(3) Inbox", "20+" of "(20+) Inbox". It
/// has one to six digits, does not begin with a zero and may end in a plus sign. Empty for a title
/// without a count.
std::string countAtHead(std::string_view title);

} // namespace tessaro
