#include "Services/Endpoints.h"

#include <gtest/gtest.h>

using tessaro::Endpoints;

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
    for (const auto& [origin, address, isNamed] : cases)
        EXPECT_EQ(Endpoints{.inboxOrigin = origin}.namesInboxHost(address), isNamed)
            << origin << " in " << address;
}
