#include "Platform/HttpClient.h"

#include "support/LoopbackServer.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace tessaro;
using namespace tessaro::test;
using namespace std::chrono_literals;

namespace {

Result<HttpResponse> get(const std::string& url, HttpOptions options = {}) {
    HttpClient client(std::move(options));
    return await(client.send({.url = url}));
}

int codeOf(const Result<HttpResponse>& response) {
    return response ? 0 : response.error().code;
}

/// Sends the head with what is asked for, then the bytes.
LoopbackServer::Handler sending(std::string bytes) {
    return
        [bytes](ServerConnection& connection, const ReceivedRequest&) { connection.write(bytes); };
}

} // namespace

TEST(HttpClient, SendsAPlainGetAndHandsOutStatusAndBody) {
    LoopbackServer server;
    server.answer("/thing", {418, "short and stout", {}});
    const auto response = get(server.origin() + "/thing?a=b%20c");
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

TEST(HttpClient, RefusesWhatIsNoAddressWithoutSending) {
    LoopbackServer server;
    for (const std::string& url :
         {std::string("no address"), std::string("ftp://127.0.0.1/"), std::string("http:///x"),
          server.origin() + "/a b", server.origin() + "/a\r\nX-Injected: b",
          server.origin() + "/%zz", server.origin() + "/\u00e9",
          server.origin() + std::string("/\0", 2)})
        EXPECT_EQ(codeOf(get(url)), HttpClient::invalidUrl) << url;
    EXPECT_EQ(server.connectionCount(), 0u);
}

TEST(HttpClient, GivesUpAfterSilenceOfTheServer) {
    LoopbackServer server;
    server.handle("/mute", [](ServerConnection& connection, const ReceivedRequest&) {
        connection.waitForClose();
    });
    server.handle("/stalls", [](ServerConnection& connection, const ReceivedRequest&) {
        connection.write("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nfour");
        connection.waitForClose();
    });
    for (const auto& path : {"/mute", "/stalls"}) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(codeOf(get(server.origin() + path, {.silenceLimit = 1s})), HttpClient::timedOut);
        const auto took = std::chrono::steady_clock::now() - start;
        EXPECT_GE(took, 900ms);
        EXPECT_LT(took, 5s);
    }
}

TEST(HttpClient, GivesUpOnABodyThatDripsOnceTheTimeInAllIsOver) {
    LoopbackServer server;
    server.handle("*", [](ServerConnection& connection, const ReceivedRequest&) {
        connection.write("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n");
        while (connection.pause(20ms) && connection.write("x")) {
        }
    });
    const auto start = std::chrono::steady_clock::now();
    const auto response = get(server.origin(), {.silenceLimit = 1s, .totalLimit = 1500ms});
    EXPECT_EQ(codeOf(response), HttpClient::timedOut);
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_GE(took, 1500ms);
    EXPECT_LT(took, 5s);
    EXPECT_TRUE(runUntil([&] { return server.openConnections() == 0; }));
}

TEST(HttpClient, TellsItsCallersCancellationFromALimit) {
    LoopbackServer server;
    server.handle("*", [](ServerConnection& connection, const ReceivedRequest&) {
        connection.waitForClose();
    });
    HttpClient client({});
    const Cancellation cancellation;
    auto task = client.send({.url = server.origin()}, cancellation);
    EXPECT_TRUE(runUntil([&] { return server.requests().size() == 1; }));
    EXPECT_FALSE(task.isDone());
    cancellation.cancel();
    EXPECT_EQ(codeOf(await(std::move(task))), HttpClient::cancelled);

    EXPECT_EQ(
        codeOf(await(client.send({.url = server.origin()}, cancellation))), HttpClient::cancelled);
}

TEST(HttpClient, EndsItsRequestAndClosesItsConnectionsThoughItWasDropped) {
    LoopbackServer server;
    server.answer("/", "whole");
    std::optional<HttpClient> client(std::in_place, HttpOptions{});
    auto task = client->send({.url = server.origin() + "/"});
    client.reset();
    const auto response = await(std::move(task));
    ASSERT_TRUE(response) << response.error().message;
    EXPECT_EQ(response->body, "whole");
    EXPECT_TRUE(runUntil([&] { return server.openConnections() == 0; }));
}

TEST(HttpClient, RefusesABodyBeyondItsLimit) {
    LoopbackServer server;
    const std::string fits(1000, 'x');
    const auto chunk = "3e8\r\n" + fits + "\r\n";
    server.answer("/fits", fits);
    server.answer("/announced", fits + "x");
    server.handle("/closing", sending("HTTP/1.1 200 OK\r\n\r\n" + fits + "x"));
    server.handle(
        "/chunked", sending(
                        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + chunk +
                        "1\r\nx\r\n0\r\n\r\n"));
    const HttpOptions options{.bodyLimit = fits.size()};
    EXPECT_EQ(codeOf(get(server.origin() + "/fits", options)), 0);
    for (const auto& path : {"/announced", "/closing", "/chunked"})
        EXPECT_EQ(codeOf(get(server.origin() + path, options)), HttpClient::bodyTooLong) << path;
}

TEST(HttpClient, DoesNotInflateACompressedAnswer) {
    LoopbackServer server;
    server.answer("/", {200, "\x1f\x8b looks like gzip", {{"Content-Encoding", "gzip"}}});
    const auto response = get(server.origin() + "/");
    ASSERT_TRUE(response) << response.error().message;
    EXPECT_EQ(response->body, "\x1f\x8b looks like gzip");
}

TEST(HttpClient, HandsOutABodyThatEndsWithItsConnection) {
    LoopbackServer server;
    server.handle("*", sending("HTTP/1.1 200 OK\r\n\r\nto the end"));
    const auto response = get(server.origin());
    ASSERT_TRUE(response) << response.error().message;
    EXPECT_EQ(response->body, "to the end");
}
