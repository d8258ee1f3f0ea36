#include "Services/Endpoints.h"
#include "Services/LogExcerpt.h"
#include "Services/TokenRedaction.h"
#include "Services/VersionComparison.h"
#include "ViewModels/UnreadCount.h"
#include "support/Repeated.h"

#include <gtest/gtest.h>

using namespace tessaro;
using test::repeated;

TEST(Endpoints, TheInboxSitesHostIsFoundInAddressesAsABrowserWritesThem) {
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"https://Inbox.example:443", "https://INBOX.example/latest?a=%", true},
        {"http://inbox.example:80", "http://inbox.example/", true},
        {"https://inbox.example", "https://login.example/?next=https://inbox.example/", true},
        {"http://127.0.0.1:8080", "http://127.0.0.1:8080/", true},
        {"http://127.0.0.1:8080", "http://127.0.0.1:8081/", false},
        {"https://inbox.example", "https://login.example/", false},
        {"inbox.example", "https://inbox.example/", false},
        {"", "https://inbox.example/", false},
    };
    EXPECT_EQ(Endpoints{.inboxOrigin = "http://LocalHost:8080"}.inboxHost(), "localhost:8080");
    for (const auto& [origin, address, isNamed] : cases)
        EXPECT_EQ(Endpoints{.inboxOrigin = origin}.namesInboxHost(address), isNamed)
            << origin << " in " << address;
}

TEST(VersionComparison, ComparesNumberByNumber) {
    for (const auto& [latest, current, newer] :
         std::initializer_list<std::tuple<const char*, const char*, bool>>{
             {"1.2.0", "1.2.0", false},
             {"1.2.1", "1.2.0", true},
             {"1.3", "1.2.0", true},
             {"1.2.0.1", "1.2.0", true},
             {"1.2", "1.2.0", false},
             {"1.10.0", "1.9.9", true},
             // A piece that is no number is left out; the later pieces move up.
             {"v1.3.0", "1.2.0", true},
             {"beta", "1.2.0", false},
             {"", "1.2.0", false},
             {"1..2...1", "1.2.0", true},
             // Signs, and a number of more than 64 bits.
             {"+1.+3", "1.2.0", true},
             {"1.2", "1.2.-1", true},
             {"9223372036854775808", "1.2.0", false},
         })
        EXPECT_EQ(isNewerVersion(latest, current), newer) << latest << " after " << current;
}

TEST(UnreadCount, IsANumberInBracketsAtTheHeadAndNothingElse) {
    EXPECT_EQ(UnreadCount::atHead("(3) Hộp thư").text(), "3");
    EXPECT_EQ(UnreadCount::atHead("\u00A0(12)").text(), "12");
    EXPECT_EQ(UnreadCount::atHead("(20+) Hộp thư").text(), "20+");
    EXPECT_EQ(UnreadCount::atHead("(3) " + std::string(100'000, ')')).text(), "3");
    for (const char* title :
         {"", "(", "()", "(+)", "(0) Hộp thư", "(03)", "(-1) Nợ", "(3", "3) Hộp thư", "(3 4)",
          "(ba) Hộp thư", "Hộp thư (3)", "(1234567) Mã đơn", "(84)912345678", "(3+1) Khuyến mãi",
          "\xff(3)"})
        EXPECT_EQ(UnreadCount::atHead(title).text(), "") << title;
}

static constexpr const char* marker = "[...truncated...]\n";

TEST(LogExcerpt, CutsOnlyAboveFiftyThousandCharacters) {
    // Characters count, not bytes: each of these has three.
    const auto limit = repeated("ệ", 50'000);
    EXPECT_EQ(logExcerpt(limit), limit);
    EXPECT_EQ(logExcerpt(limit + "x"), marker + limit + "x") << "fewer than 200 lines stay whole";
    EXPECT_EQ(logExcerpt("good\nb\xff"), "good\nb\uFFFD");
}

TEST(LogExcerpt, KeepsTheLastTwoHundredLines) {
    const std::string line(300, 'a');
    const auto kept = repeated(line + "\n", 199) + line;
    for (const std::string older : {"", "\n", "older\n"})
        EXPECT_EQ(logExcerpt(older + kept), marker + kept) << older;
    // After a line feed at the end comes one more line, which is empty.
    EXPECT_EQ(logExcerpt("older\n" + kept + "\n"), marker + kept.substr(line.size() + 1) + "\n");
}

TEST(TokenRedaction, EncodesForAQueryWhatAQueryDoesNotAllow) {
    EXPECT_EQ(encodedForQuery(SecretText("aZ09-._~!$&'()*+,;=:@/?")), "aZ09-._~!$&'()*+,;=:@/?");
    EXPECT_EQ(
        encodedForQuery(SecretText(std::string(" #%\"<>[]^`{|}\\é\n\0", 18))),
        "%20%23%25%22%3C%3E%5B%5D%5E%60%7B%7C%7D%5C%C3%A9%0A%00");
}

TEST(TokenRedaction, FindsTheTokenHoweverItIsEscaped) {
    for (const char* echoed :
         {"EA b#/%1", "EA%20b%23/%251", "EA%20b%23%2f%251", "%45%41%20%62%23%2F%25%31"})
        EXPECT_EQ(
            redacted("x" + std::string(echoed) + "y" + echoed, SecretText("EA b#/%1")), "x…y…");
    EXPECT_EQ(redacted("EA%20b%23", SecretText("EA b#/%1")), "EA%20b%23");
    EXPECT_EQ(redacted("Invalid OAuth", SecretText("a")), "Invalid OAuth") << "no secret";
}
