#include "Platform/WebAddress.h"

#include <gtest/gtest.h>

using tessaro::isOpenableAddress;

TEST(WebAddress, OnlyHttpWithAHostIsOpenable) {
    for (const auto* address :
         {"http://a.example", "https://a.example/b?c=d#e", "HTTPS://A.example:8443/",
          "https://[::1]/"})
        EXPECT_TRUE(isOpenableAddress(address)) << address;
    for (const auto* address :
         {"", "a.example", "/a", "//a.example/b", "https:", "https://", "https:///path",
          "https://:80/", "file:///etc/passwd", "javascript:alert(1)", "mailto:a@a.example",
          "ftp://a.example", "https://a example/", " https://a.example", "https://a.example:port/"})
        EXPECT_FALSE(isOpenableAddress(address)) << address;
    EXPECT_FALSE(isOpenableAddress(std::string("https://a.example/\0evil", 23)));
}
