#include "HttpGet.h"

#include "support/LoopbackServer.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace tessaro;
using namespace tessaro::test;
using namespace std::chrono_literals;

namespace {

LoopbackServer::Answer redirect(int status, const std::string& location) {
    return {status, "moved", {{"Location", location}}};
}

class HttpClientTest : public testing::Test {
protected:
    LoopbackServer server;
    const std::string origin = server.origin();
};

} // namespace

TEST_F(HttpClientTest, SendsAPlainGetAndHandsOutStatusAndBodyWithoutInflatingIt) {
    server.answer("/thing", {418, "\x1f\x8b like gzip", {{"Content-Encoding", "gzip"}}});
    const auto response = get(origin + "/thing?a=b%20c").value();
    EXPECT_EQ(response.status, 418u);
    EXPECT_EQ(response.body, "\x1f\x8b like gzip");
    const auto request = server.requests().at(0);
    EXPECT_EQ(request.method, "GET");
    EXPECT_EQ(request.target, "/thing?a=b%20c");
    EXPECT_FALSE(request.headers.contains("accept-encoding"));
}

TEST_F(HttpClientTest, PostsABodyWithItsTypeAndRepeatsItOnlyWhereARedirectSaysSo) {
    server.answer("/kept", redirect(307, "/end"));
    server.answer("/dropped", redirect(303, "/end"));
    server.answer("/end", "");
    send({"POST", origin + "/kept", "application/json", "body"}).value();
    EXPECT_EQ(server.requests().back().method, "POST");
    EXPECT_EQ(server.requests().back().headers.at("content-type"), "application/json");
    EXPECT_EQ(server.requests().back().body, "body");
    send({"POST", origin + "/dropped", "application/json", "body"}).value();
    EXPECT_EQ(server.requests().back().method, "GET");
    EXPECT_EQ(server.requests().back().body, "");
}

TEST_F(HttpClientTest, RefusesWhatIsNoAddressWithoutSending) {
    for (const std::string& url :
         {std::string("no address"), std::string("ftp://127.0.0.1/"), std::string("http:///x"),
          origin + "/a\r\nX-Injected: b", origin + "/%zz", origin + "/\u00e9",
          origin + std::string("/\0", 2)})
        EXPECT_EQ(codeOf(get(url)), HttpClient::invalidUrl) << url;
    EXPECT_EQ(server.connectionCount(), 0u);
}

TEST_F(HttpClientTest, GivesUpAfterSilenceOfTheServer) {
    for (const std::string first : {"", "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nfour"}) {
        server.handle("*", [first](ServerConnection& connection, const ReceivedRequest&) {
            connection.write(first);
            connection.waitForClose();
        });
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(codeOf(get(origin, {.silenceLimit = 1s})), HttpClient::timedOut);
        EXPECT_GE(std::chrono::steady_clock::now() - start, 900ms);
    }
}

TEST_F(HttpClientTest, EndsItsRequestAndClosesItsConnectionsThoughItWasDropped) {
    server.answer("/", "whole");
    std::optional<HttpClient> client(std::in_place, HttpOptions{});
    auto task = client->send({.url = origin + "/"});
    client.reset();
    EXPECT_EQ(await(std::move(task)).value().body, "whole");
    EXPECT_TRUE(runUntil([&] { return server.openConnections() == 0; }));
}

TEST_F(HttpClientTest, GoesWhereARedirectSaysWithoutTheFirstQuery) {
    LoopbackServer target("", "127.0.0.2");
    target.answer("/a/start", redirect(301, "../picture.jpg?size=2"));
    target.answer("/picture.jpg", "picture");
    server.answer("/start", redirect(302, target.origin() + "/a/start"));
    EXPECT_EQ(get(origin + "/start?access_token=secret").value().body, "picture");
    EXPECT_EQ(target.requests().back().target, "/picture.jpg?size=2");
    for (const auto& request : target.requests()) {
        EXPECT_EQ(request.target.find("secret"), std::string::npos);
        for (const auto& [name, value] : request.headers)
            EXPECT_EQ(value.find("secret"), std::string::npos) << name;
    }
}

TEST_F(HttpClientTest, RefusesARedirectInACircleAndToWhereNoHttpIs) {
    for (const char* location : {"/from", "file:///etc/passwd", "javascript:alert(1)", "http://"}) {
        server.answer("/from", redirect(302, location));
        EXPECT_EQ(codeOf(get(origin + "/from")), HttpClient::badRedirect) << location;
    }
}
