#include "Platform/WebAddress.h"

#include <gtest/gtest.h>

using tessaro::isOpenableAddress;
using tessaro::originOf;

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
