#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Text operations by the rules of Unicode. Every text is UTF-8.
namespace tessaro {

/// The text without the blanks (as for trimBlanks) and line breaks at both ends.
std::string trimWhitespaceAndNewlines(std::string_view text);

/// The text without the blanks at both ends: tabs and the Unicode space separators, but not line
/// breaks.
std::string trimBlanks(std::string_view text);

/// The first user-perceived character (grapheme cluster, UAX #29) in upper case by the full Unicode
/// rules; empty for an empty text.
std::string firstCharacterUpperCased(std::string_view text);

/// The text as a person looks for it: without case and without marks above or below letters, and
/// "d" for "đ", which has no mark of its own.
std::string searchForm(std::string_view text);

/// The number of Unicode code points; a damaged byte sequence counts as one.
std::size_t characterCount(std::string_view text);

/// Reads a text that is one whole number: ASCII digits, with or without a sign before them.
/// Returns nothing for any other text and for a number beyond 64 bits.
std::optional<std::int64_t> wholeNumber(std::string_view text);

/// Whether the whole text is well-formed UTF-8.
bool isValidUtf8(std::string_view text);

/// The text with every damaged byte sequence replaced by U+FFFD.
std::string toValidUtf8(std::string_view text);

} // namespace tessaro
