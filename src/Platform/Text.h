#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Text operations by the rules of Unicode. Every text is UTF-8.
namespace tessaro {

/// Without the white space (every Unicode blank) and line breaks at both ends.
std::string trimWhitespaceAndNewlines(std::string_view text);

/// Without the blanks (spaces, tabs and the other Unicode space separators, not line breaks) at
/// both ends.
std::string trimBlanks(std::string_view text);

/// The first user-perceived character (grapheme cluster, UAX #29) in upper case by the full Unicode
/// rules; empty for an empty text.
std::string firstCharacterUpperCased(std::string_view text);

/// The number of Unicode code points; a damaged byte sequence counts as one.
std::size_t characterCount(std::string_view text);

/// The whole number that is all of the text: decimal digits of ASCII after one sign or none.
/// Nothing for any other text, or beyond 64 bits.
std::optional<std::int64_t> wholeNumber(std::string_view text);

/// Whether no byte sequence of the text is damaged.
bool isValidUtf8(std::string_view text);

/// The text with every damaged byte sequence replaced by U+FFFD.
std::string toValidUtf8(std::string_view text);

} // namespace tessaro
