#include "Platform/DateTime.h"
#include "Platform/Text.h"
#include "Platform/Uuid.h"
#include "Platform/WebAddress.h"
#include "support/Repeated.h"

#include <gtest/gtest.h>

using namespace tessaro;
using namespace std::chrono_literals;

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

TEST(Text, IsLookedForWithoutCaseAndMarks) {
    for (const char* name : {"Cửa hàng Đồng Quê", "CU\u031B\u0309A HA\u0300NG đồng quê"})
        EXPECT_EQ(searchForm(name), "cua hang dong que");
    EXPECT_EQ(searchForm("ﬁ\xFF مَتْجَر"), "fi\uFFFD متجر");
}

TEST(Text, ReadsAWholeNumberOrNothing) {
    const std::pair<const char*, std::optional<std::int64_t>> numbers[] = {
        {"8080", 8080}, {"+21", 21}, {"-5", -5},  {"", {}},     {"8080 ", {}},
        {"80a", {}},    {"+-5", {}}, {"++5", {}}, {"0x50", {}}, {"12345678901234567890", {}},
    };
    for (const auto& [text, number] : numbers)
        EXPECT_EQ(wholeNumber(text), number) << '"' << text << '"';
}

TEST(Text, SurvivesDamagedBytesAndEndlessMarks) {
    EXPECT_EQ(firstCharacterUpperCased("\xF0\x9F"), "\uFFFD");
    EXPECT_EQ(firstCharacterUpperCased(std::string_view("\0a", 2)), std::string(1, '\0'));
    EXPECT_LE(firstCharacterUpperCased("a" + test::repeated("\u0301", 500'000)).size(), 260u);

    EXPECT_EQ(toValidUtf8("a\xFF\xC3(\xE2\x82"), "a\uFFFD\uFFFD(\uFFFD");
    EXPECT_EQ(toValidUtf8(std::string_view("a\0b", 3)), std::string_view("a\0b", 3));
    EXPECT_EQ(characterCount("Đà 👍\xFF\xE2\x82"), 6u);
}

TEST(Uuid, ReadsEitherCaseWritesUpperCaseAndRefusesEveryOtherText) {
    const auto lower = Uuid::parse("0aF3c2d1-00ff-4b6e-9abc-def012345678").value();
    EXPECT_EQ(lower.text(), "0AF3C2D1-00FF-4B6E-9ABC-DEF012345678");
    EXPECT_EQ(lower, Uuid::parse(lower.text()));
    EXPECT_NE(Uuid::random(), Uuid::random());
    for (const char* text :
         {"", "0AF3C2D1-00FF-4B6E-9ABC-DEF01234567", "0AF3C2D1-00FF-4B6E-9ABC-DEF0123456789",
          "0AF3C2D1000FF-4B6E-9ABC-DEF012345678", "0AF3C2D1-00FF-4B6E-9ABC-DEF01234567G",
          "0AF3C2D1-00FF-4B6E-9ABC-DEF0-2345678"})
        EXPECT_FALSE(Uuid::parse(text)) << text;
}

TEST(DateTime, WritesBackWhatItReadsAndRefusesOtherFormsAndTimesThatDoNotExist) {
    for (const char* text :
         {"2025-03-01T09:30:05Z", "2024-02-29T00:00:00Z", "1969-12-31T23:59:59Z",
          "0001-01-01T00:00:00Z", "9999-12-31T23:59:59Z"})
        EXPECT_EQ(formatDateTime(parseDateTime(text).value() + 999ms), text);
    for (const char* text :
         {"2025-03-01T09:30:05.250Z", "2025-03-01T09:30:05", "2025-03-01T09:30:05+00:00",
          "2025-03-01t09:30:05z", "2025-3-01T09:30:05Z", " 2025-03-01T09:30:05Z",
          "+025-03-01T09:30:05Z", "2023-02-29T00:00:00Z", "2025-13-01T00:00:00Z",
          "2025-01-00T00:00:00Z", "2025-01-01T24:00:00Z", "2016-12-31T23:59:60Z", ""})
        EXPECT_FALSE(parseDateTime(text)) << text;
}

TEST(WebAddress, OnlyHttpWithAHostIsOpenable) {
    for (const auto* address :
         {"http://a.example", "https://a.example/b?c=d#e", "HTTPS://A.example:8443/",
          "https://[::1]/", "https://a.example/%E1%?q=100%#%"})
        EXPECT_TRUE(isOpenableAddress(address)) << address;
    for (const auto* address :
         {"", "a.example", "/a", "//a.example/b", "https:", "https://", "https:///path",
          "https://:80/", "file:///etc/passwd", "javascript:alert(1)", "mailto:a@a.example",
          "ftp://a.example", "https://a example/", " https://a.example", "https://a.example:port/"})
        EXPECT_FALSE(isOpenableAddress(address)) << address;
    EXPECT_FALSE(isOpenableAddress(std::string("https://a.example/\0evil", 23)));
}

TEST(WebAddress, TellsPagesApartBySchemeHostAndPort) {
    EXPECT_EQ(originOf("https://a.example"), "https://a.example:443");
    EXPECT_EQ(originOf("HTTPS://A.Example:443/b?c=d#e"), "https://a.example:443");
    EXPECT_EQ(originOf("http://a.example@b.example/"), "http://b.example:80");
    EXPECT_EQ(originOf("https://a.example/100%?%E1"), "https://a.example:443");
    EXPECT_EQ(originOf("https://hộp.example"), "https://xn--hp-79s.example:443");
    EXPECT_EQ(originOf("https://a.example\\@b.example/"), "https://a.example:443");
    EXPECT_EQ(originOf("http://127.0.0.1:8080/b"), "http://127.0.0.1:8080");
    for (const auto* address : {"", "about:blank", "data:text/html,a", "file:///etc/passwd"})
        EXPECT_EQ(originOf(address), "") << address;
}
