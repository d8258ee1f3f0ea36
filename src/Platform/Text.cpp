#include "Platform/Text.h"

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <charconv>
#include <memory>

namespace tessaro {

namespace {

icu::StringPiece piece(std::string_view text) {
    return {text.data(), static_cast<int32_t>(text.size())};
}

/// A negative code point stands for damaged bytes.
bool isBlank(UChar32 c) {
    return c == '\t' || (c >= 0 && u_charType(c) == U_SPACE_SEPARATOR);
}

bool isLineBreak(UChar32 c) {
    constexpr UChar32 nextLine = 0x85, lineSeparator = 0x2028, paragraphSeparator = 0x2029;
    return (c >= '\n' && c <= '\r') || c == nextLine || c == lineSeparator ||
           c == paragraphSeparator;
}

template <typename Predicate>
std::string trim(std::string_view text, Predicate drops) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(text.data());
    int32_t begin = 0, end = static_cast<int32_t>(text.size());
    UChar32 c;
    for (int32_t next = 0; next < end; begin = next) {
        U8_NEXT(bytes, next, end, c);
        if (!drops(c))
            break;
    }
    for (int32_t next = end; next > begin; end = next) {
        U8_PREV(bytes, begin, next, c);
        if (!drops(c))
            break;
    }
    return std::string(text.data() + begin, static_cast<std::size_t>(end - begin));
}

} // namespace

std::string trimWhitespaceAndNewlines(std::string_view text) {
    return trim(text, [](UChar32 c) { return isBlank(c) || isLineBreak(c); });
}

std::string trimBlanks(std::string_view text) {
    return trim(text, isBlank);
}

std::string firstCharacterUpperCased(std::string_view text) {
    // A server can send a name of any length, but a readable character is never longer than this.
    constexpr std::size_t longestCharacter = 256;
    const auto start = icu::UnicodeString::fromUTF8(piece(text.substr(0, longestCharacter)));

    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> characters(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    int32_t end = start.moveIndex32(0, 1);
    if (U_SUCCESS(status)) {
        characters->setText(start);
        end = std::max(characters->next(), 0);
    }
    std::string result;
    icu::UnicodeString(start, 0, end).toUpper(icu::Locale::getRoot()).toUTF8String(result);
    return result;
}

std::size_t characterCount(std::string_view text) {
    return static_cast<std::size_t>(icu::UnicodeString::fromUTF8(piece(text)).countChar32());
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    // std::from_chars knows the minus sign only.
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

bool isValidUtf8(std::string_view text) {
    return toValidUtf8(text) == text;
}

std::string toValidUtf8(std::string_view text) {
    std::string result;
    icu::UnicodeString::fromUTF8(piece(text)).toUTF8String(result);
    return result;
}

} // namespace tessaro
