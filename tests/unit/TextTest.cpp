#include "Platform/Text.h"

#include <gtest/gtest.h>

using namespace tessaro;

TEST(Text, TrimsEveryUnicodeBlankAndKeepsTheMiddle) {
    EXPECT_EQ(trimWhitespaceAndNewlines("\r\n\t \u00A0\u3000một hai\u2028\u0085\v\n"), "một hai");
    EXPECT_EQ(trimWhitespaceAndNewlines(" \u2003\n "), "");
    EXPECT_EQ(trimBlanks("\u00A0\t\na\n \u3000"), "\na\n");
    EXPECT_EQ(trimBlanks("\x80 a \xF0\x9F"), "\x80 a \xF0\x9F");
}

TEST(Text, TakesOnePerceivedCharacterInUpperCase) {
    EXPECT_EQ(firstCharacterUpperCased(""), "");
    EXPECT_EQ(firstCharacterUpperCased("đông"), "Đ");
    EXPECT_EQ(firstCharacterUpperCased("ßtraße"), "SS");
    // Letters with combining marks, a skin tone, a family, two flags.
    EXPECT_EQ(firstCharacterUpperCased("e\u0302\u0301x"), "E\u0302\u0301");
    EXPECT_EQ(firstCharacterUpperCased("👍🏽👍"), "👍🏽");
    EXPECT_EQ(firstCharacterUpperCased("👩‍👩‍👧a"), "👩‍👩‍👧");
    EXPECT_EQ(firstCharacterUpperCased("🇻🇳🇫🇷"), "🇻🇳");
}

TEST(Text, SurvivesDamagedBytesAndEndlessMarks) {
    EXPECT_EQ(firstCharacterUpperCased("\xF0\x9F"), "\uFFFD");
    EXPECT_EQ(firstCharacterUpperCased(std::string_view("\0a", 2)), std::string(1, '\0'));
    std::string marks = "a";
    for (int i = 0; i < 500'000; ++i)
        marks += "\u0301";
    EXPECT_LE(firstCharacterUpperCased(marks).size(), 260u);

    EXPECT_EQ(toValidUtf8("a\xFF\xC3(\xE2\x82"), "a\uFFFD\uFFFD(\uFFFD");
    EXPECT_EQ(toValidUtf8(std::string_view("a\0b", 3)), std::string_view("a\0b", 3));
    EXPECT_EQ(characterCount("Đà 👍\xFF\xE2\x82"), 7u);
}
