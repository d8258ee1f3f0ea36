#include "Services/TokenRedaction.h"

#include <gtest/gtest.h>

using namespace tessaro;

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
