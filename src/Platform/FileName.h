#pragma once

#include <string>
#include <string_view>

namespace tessaro {

/// Makes a file name of any text. The name has at most 200 bytes, is not hidden and names a file
/// directly in its folder. Different texts have different names. Slashes, percent signs, control
/// characters and a dot at the beginning become a percent sign and two hexadecimal digits. A text
/// that is too long becomes its digest.
std::string fileNameFor(std::string_view text);

} // namespace tessaro
