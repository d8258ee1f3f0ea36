#include "Services/LogExcerpt.h"

#include <gtest/gtest.h>

using tessaro::logExcerpt;

namespace {

constexpr const char* marker = "[...truncated...]\n";

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

} // namespace

TEST(LogExcerpt, CutsOnlyAboveFiftyThousandCharacters) {
    // Vietnamese letters of three bytes each: bytes must not be counted.
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
    // A line feed at the end is followed by one more line, which is empty.
    EXPECT_EQ(logExcerpt("older\n" + kept + "\n"), marker + kept.substr(line.size() + 1) + "\n");
}
