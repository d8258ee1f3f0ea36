#pragma once

#include <string>
#include <string_view>

namespace tessaro {

/// The count that a site puts at the head of a page's title, "3" of "(3) Inbox" and "20+" of
/// "(20+) Inbox": one to six digits that begin with no zero, and a plus sign or none. Empty
/// for a title without one.
std::string countAtHead(std::string_view title);

} // namespace tessaro
