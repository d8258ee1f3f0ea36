#include "Platform/HttpClient.h"
#include "support/MainLoop.h"
#include "support/RecordingProxy.h"
#include "support/TestAuthority.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace tessaro;
using namespace tessaro::test;

namespace {

Result<HttpResponse> get(const std::string& url, HttpOptions options) {
    HttpClient client(std::move(options));
    return await(client.send({.url = url}));
}

} // namespace

TEST(HttpClientTls, TrustsItsAuthorityAndNobodyElse) {
    const TestAuthority authority;
    const TestAuthority stranger;
    const HttpOptions options{.authorityFile = authority.file()};

    LoopbackServer valid(authority.valid());
    valid.answer("/", "secure");
    const auto response = get(valid.origin() + "/", options);
    ASSERT_TRUE(response) << response.error().message;
    EXPECT_EQ(response->body, "secure");
    EXPECT_FALSE(get(valid.origin() + "/", {})) << "the system's store does not know the authority";

    for (const auto& identity :
         {authority.expired(), authority.forAnotherHost(), authority.selfSigned(),
          stranger.valid()}) {
        LoopbackServer server(identity);
        server.answer("/", "never sent");
        const auto refused = get(server.origin() + "/?access_token=secret", options);
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.error().code, HttpClient::transport);
        EXPECT_EQ(server.requests().size(), 0u);
    }
}

TEST(HttpClientTls, SendsNothingInTheClearToAServerThatKnowsNoTls) {
    LoopbackServer plain;
    const auto response =
        get("https://" + plain.origin().substr(7) + "/?access_token=secret",
            {.silenceLimit = std::chrono::seconds(1)});
    EXPECT_FALSE(response);
    EXPECT_EQ(plain.requests().size(), 0u);
}

TEST(HttpClientProxy, CarriesPlainAndTlsRequestsAlikeWithoutCredentials) {
    const TestAuthority authority;
    LoopbackServer plain;
    LoopbackServer secure(authority.valid());
    plain.answer("/plain", "in the clear");
    secure.answer("/secure", "through a tunnel");
    RecordingProxy proxy;
    HttpClient client({.proxy = proxy.address(), .authorityFile = authority.file()});

    const auto first = await(client.send({.url = plain.origin() + "/plain?q=1"}));
    ASSERT_TRUE(first) << first.error().message;
    EXPECT_EQ(first->body, "in the clear");
    const auto second = await(client.send({.url = secure.origin() + "/secure?q=2"}));
    ASSERT_TRUE(second) << second.error().message;
    EXPECT_EQ(second->body, "through a tunnel");

    const auto seen = proxy.requests();
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0].method, "GET");
    EXPECT_EQ(seen[0].target, plain.origin() + "/plain?q=1");
    EXPECT_EQ(seen[1].method, "CONNECT");
    EXPECT_EQ(seen[1].target, secure.origin().substr(8));
    for (const auto& request : seen)
        EXPECT_FALSE(request.headers.contains("proxy-authorization"));
}

TEST(HttpClientProxy, HandsOutTheProxysRequestForCredentialsAsAResponse) {
    const TestAuthority authority;
    LoopbackServer plain;
    LoopbackServer secure(authority.valid());
    RecordingProxy proxy;
    proxy.askForCredentials();
    const HttpOptions options{.proxy = proxy.address(), .authorityFile = authority.file()};
    for (const auto& origin : {plain.origin(), secure.origin()}) {
        const auto response = get(origin + "/?access_token=secret", options);
        ASSERT_TRUE(response) << response.error().message;
        EXPECT_EQ(response->status, 407u);
    }
    EXPECT_EQ(plain.connectionCount() + secure.connectionCount(), 0u);
}

TEST(HttpClientProxy, NeverGoesDirectlyWhenItsProxyCannotBeUsed) {
    LoopbackServer server;
    server.answer("/", "reached");
    std::int64_t closed;
    { closed = LoopbackServer().port(); }
    for (const auto& proxy : std::initializer_list<HttpOptions::Proxy>{
             {"127.0.0.1", closed},
             {"127.0.0.1", 70000},
             {"127.0.0.1", -1},
             {"no host/", 80},
             {"127.0.0.1 ", closed},
             {"\xff", 80}}) {
        EXPECT_FALSE(get(server.origin() + "/", {.proxy = proxy})) << proxy.host << proxy.port;
    }
    EXPECT_EQ(server.connectionCount(), 0u);
}

TEST(HttpClientProxy, HeedsTheEnvironmentOnlyWhenAskedTo) {
    LoopbackServer server;
    server.answer("/", "reached");
    RecordingProxy proxy;
    const auto address = "http://127.0.0.1:" + std::to_string(proxy.address().port);
    g_setenv("http_proxy", address.c_str(), TRUE);
    g_unsetenv("no_proxy");
    EXPECT_TRUE(get(server.origin() + "/", {}));
    EXPECT_EQ(proxy.requests().size(), 0u);
    EXPECT_TRUE(get(server.origin() + "/", {.useSystemProxy = true}));
    EXPECT_EQ(proxy.requests().size(), 1u);
    g_unsetenv("http_proxy");
}
