#pragma once

#include <string>
#include <string_view>

namespace tessaro {

/// A file name for a text that comes from elsewhere: always one name directly in its folder, never
/// hidden, at most 200 bytes, and another one for every other text. Letters and digits stay as
/// they are; a byte that would lead elsewhere becomes a percent sign and two hexadecimal digits,
/// and a text that is too long becomes its digest.
std::string fileNameFor(std::string_view text);

} // namespace tessaro
