#include "Platform/ChunkedDecoder.h"

#include <gtest/gtest.h>

#include <optional>

using namespace tessaro;

namespace {

/// What the framed body holds; nothing when it is malformed or ends early.
std::optional<std::string> decoded(std::string_view framed) {
    ChunkedDecoder decoder;
    std::string body;
    return decoder.feed(framed, body) && decoder.isComplete() ? std::optional(body) : std::nullopt;
}

} // namespace

TEST(ChunkedDecoder, TakesEveryFormOfAWholeBodyAndNoOther) {
    for (const std::string_view whole :
         {"2\r\nhe\r\n3\r\nllo\r\n0\r\n\r\n", "5;a=b\r\nhello\r\n0;c=\"d e\"\r\n\r\n",
          "0005 ;a\r\nhello\r\n000 \r\nX: 1\r\nY: 2\r\n\r\n"}) {
        EXPECT_EQ(decoded(whole), "hello") << whole;
        for (std::size_t length = 0; length < whole.size(); ++length)
            EXPECT_EQ(decoded(whole.substr(0, length)), std::nullopt) << "cut after " << length;
    }
    for (const char* framed :
         {"5\r\nhello\r\nzz\r\nhello\r\n0\r\n\r\n", "-5\r\nhello\r\n0\r\n\r\n",
          "0x5\r\nhello\r\n0\r\n\r\n", "5\r\nhelloo\r\n0\r\n\r\n", "\r\n0\r\n\r\n",
          "5\nhello\n0\n\n", "10000000000000005\r\nhello\r\n0\r\n\r\n"})
        EXPECT_EQ(decoded(framed), std::nullopt) << framed;
}
