#include "Platform/HttpClient.h"

#include "support/LoopbackServer.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>

using namespace tessaro;
using namespace tessaro::test;

TEST(HttpClient, SendsAPlainGetAndHandsOutStatusAndBody) {
    LoopbackServer server;
    server.answer("/thing", {418, "short and stout", {}});
    HttpClient client({});
    const auto response = await(client.send({"GET", server.origin() + "/thing?a=b%20c"}));
    ASSERT_TRUE(response) << response.error().message;
    EXPECT_EQ(response->status, 418u);
    EXPECT_EQ(response->body, "short and stout");
    ASSERT_EQ(server.requests().size(), 1u);
    const auto request = server.requests().front();
    EXPECT_EQ(request.method, "GET");
    EXPECT_EQ(request.target, "/thing?a=b%20c");
    EXPECT_FALSE(request.headers.contains("accept-encoding"));
}

TEST(HttpClient, PostsABodyWithItsType) {
    LoopbackServer server;
    server.answer("/in", "");
    HttpClient client({});
    const auto response =
        await(client.send({"POST", server.origin() + "/in", "application/json", R"({"a":1})"}));
    ASSERT_TRUE(response) << response.error().message;
    const auto request = server.requests().front();
    EXPECT_EQ(request.method, "POST");
    EXPECT_EQ(request.headers.at("content-type"), "application/json");
    EXPECT_EQ(request.body, R"({"a":1})");
}
