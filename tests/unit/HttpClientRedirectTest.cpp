#include "Platform/HttpClient.h"
#include "support/MainLoop.h"
#include "support/TestAuthority.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace tessaro;
using namespace tessaro::test;

namespace {

LoopbackServer::Answer redirect(int status, const std::string& location) {
    return {status, "moved", {{"Location", location}}};
}

Result<HttpResponse> send(HttpRequest request, HttpOptions options = {}) {
    HttpClient client(std::move(options));
    return await(client.send(std::move(request)));
}

int codeOf(const Result<HttpResponse>& response) {
    return response ? 0 : response.error().code;
}

} // namespace

TEST(HttpClientRedirect, GoesWhereTheServerSaysWithoutTheFirstQuery) {
    LoopbackServer target(std::nullopt, "127.0.0.2");
    target.answer("/picture.jpg", "picture");
    LoopbackServer server;
    server.answer("/start", redirect(302, target.origin() + "/picture.jpg?size=2"));
    const auto response = send({.url = server.origin() + "/start?access_token=secret"});
    ASSERT_TRUE(response) << response.error().message;
    EXPECT_EQ(response->body, "picture");
    ASSERT_EQ(target.requests().size(), 1u);
    const auto request = target.requests().front();
    EXPECT_EQ(request.target, "/picture.jpg?size=2");
    for (const auto& [name, value] : request.headers)
        EXPECT_EQ(value.find("secret"), std::string::npos) << name;
}

TEST(HttpClientRedirect, FollowsARelativeLocation) {
    LoopbackServer server;
    server.answer("/a/b", redirect(301, "../c"));
    server.answer("/c", "there");
    const auto response = send({.url = server.origin() + "/a/b?q"});
    ASSERT_TRUE(response) << response.error().message;
    EXPECT_EQ(response->body, "there");
    EXPECT_EQ(server.requests().back().target, "/c");
}

TEST(HttpClientRedirect, RepeatsTheBodyOnlyWhereTheStatusSaysSo) {
    LoopbackServer server;
    server.answer("/kept", redirect(307, "/end"));
    server.answer("/dropped", redirect(303, "/end"));
    server.answer("/end", "");
    send({"POST", server.origin() + "/kept", "text/plain", "body"});
    EXPECT_EQ(server.requests().back().method, "POST");
    EXPECT_EQ(server.requests().back().body, "body");
    send({"POST", server.origin() + "/dropped", "text/plain", "body"});
    EXPECT_EQ(server.requests().back().method, "GET");
    EXPECT_EQ(server.requests().back().body, "");
}

TEST(HttpClientRedirect, StopsAfterTenInARow) {
    LoopbackServer server;
    server.answer("/loop", redirect(301, "/loop"));
    EXPECT_EQ(codeOf(send({.url = server.origin() + "/loop"})), HttpClient::badRedirect);
    EXPECT_EQ(server.requests().size(), 11u);
}

TEST(HttpClientRedirect, RefusesToLeaveTlsAndToGoWhereNoHttpIs) {
    const TestAuthority authority;
    LoopbackServer plain;
    LoopbackServer secure(authority.valid());
    secure.answer("/down", redirect(302, plain.origin() + "/"));
    secure.answer("/aside", redirect(302, "//" + plain.origin().substr(7) + "/"));
    const HttpOptions options{
        .silenceLimit = std::chrono::seconds(1), .authorityFile = authority.file()};
    EXPECT_EQ(codeOf(send({.url = secure.origin() + "/down"}, options)), HttpClient::badRedirect);
    // Without a scheme the address stays one of TLS, which the plain server does not speak.
    EXPECT_FALSE(send({.url = secure.origin() + "/aside"}, options));

    plain.answer("/file", redirect(302, "file:///etc/passwd"));
    plain.answer("/script", redirect(302, "javascript:alert(1)"));
    plain.answer("/nowhere", redirect(302, "http://"));
    for (const auto& path : {"/file", "/script", "/nowhere"})
        EXPECT_EQ(codeOf(send({.url = plain.origin() + path})), HttpClient::badRedirect) << path;
    EXPECT_EQ(plain.requestCount("/"), 0u);
}

TEST(HttpClientRedirect, TakesARedirectWithoutALocationForTheAnswer) {
    LoopbackServer server;
    server.answer("/", {302, "nowhere", {}});
    const auto response = send({.url = server.origin() + "/"});
    ASSERT_TRUE(response) << response.error().message;
    EXPECT_EQ(response->status, 302u);
    EXPECT_EQ(response->body, "nowhere");
}
