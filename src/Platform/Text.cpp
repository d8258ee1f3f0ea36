#include "Platform/Text.h"

#include <unicode/brkiter.h>
#include <unicode/normalizer2.h>
#include <unicode/schriter.h>
#include <unicode/uchar.h>
#include <unicode/uniset.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <charconv>
#include <memory>

namespace tessaro {

namespace {

icu::StringPiece piece(std::string_view text) {
    return {text.data(), static_cast<int32_t>(text.size())};
}

/// The text without the characters of the set at both ends. Damaged bytes are in no set.
/// @param pattern  a set by the rules of UTS #18
std::string trim(std::string_view text, const char16_t* pattern) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeSet dropped(pattern, status);
    const auto size = static_cast<int32_t>(text.size());
    const int32_t begin = dropped.spanUTF8(text.data(), size, USET_SPAN_CONTAINED);
    const int32_t end = dropped.spanBackUTF8(text.data(), size, USET_SPAN_CONTAINED);
    return begin < end ? std::string(text.substr(begin, end - begin)) : std::string();
}

} // namespace

std::string trimWhitespaceAndNewlines(std::string_view text) {
    return trim(text, u"[\\p{Zs}\\t-\\r\\u0085\\u2028\\u2029]");
}

std::string trimBlanks(std::string_view text) {
    return trim(text, u"[\\p{Zs}\\t]");
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

std::string searchForm(std::string_view text) {
    UErrorCode status = U_ZERO_ERROR;
    const auto* compatible = icu::Normalizer2::getNFKDInstance(status);
    if (U_FAILURE(status))
        return std::string(text);
    const auto letters =
        compatible->normalize(icu::UnicodeString::fromUTF8(piece(text)).foldCase(), status);
    icu::UnicodeString result;
    for (icu::StringCharacterIterator at(letters); at.hasNext();) {
        const UChar32 letter = at.next32PostInc();
        if (u_charType(letter) != U_NON_SPACING_MARK)
            result.append(UChar32(letter == U'đ' ? U'd' : letter));
    }
    std::string utf8;
    return result.toUTF8String(utf8);
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
