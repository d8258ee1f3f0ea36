#include "Platform/HttpClient.h"
#include "support/MainLoop.h"
#include "support/TestAuthority.h"

#include <gtest/gtest.h>

#include <chrono>
#include <mutex>

using namespace tessaro;
using namespace tessaro::test;
using namespace std::chrono_literals;

namespace {

std::string chunk(const std::string& data) {
    char size[24];
    g_snprintf(size, sizeof size, "%zx\r\n", data.size());
    return size + data + "\r\n";
}

/// Serves one body behind the head of a chunked answer, whole or in pieces that arrive apart, and
/// then ends the connection.
class HttpClientChunked : public testing::TestWithParam<bool> {
protected:
    HttpClientChunked() {
        if (GetParam()) {
            authority_.emplace();
            server_.emplace(authority_->valid());
            client_.emplace(HttpOptions{.authorityFile = authority_->file()});
        } else {
            server_.emplace();
            client_.emplace(HttpOptions{});
        }
        server_->handle("*", [this](ServerConnection& connection, const ReceivedRequest&) {
            // Copies: the test goes on to the next body once the client has ended.
            std::unique_lock lock(mutex_);
            const auto body = body_;
            const auto piece = piece_;
            const bool drop = drop_;
            lock.unlock();
            connection.write("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n");
            for (std::size_t at = 0; at < body.size(); at += piece) {
                connection.write(body.substr(at, piece));
                if (piece < body.size())
                    connection.pause(1ms);
            }
            if (drop)
                connection.drop();
        });
    }

    Result<HttpResponse> receive(std::string body, std::size_t piece = 1 << 30, bool drop = false) {
        {
            const std::lock_guard lock(mutex_);
            body_ = std::move(body);
            piece_ = piece;
            drop_ = drop;
        }
        return await(client_->send({.url = server_->origin()}));
    }

    std::optional<TestAuthority> authority_;
    std::optional<HttpClient> client_;
    std::mutex mutex_; ///< Guards the three below.
    std::string body_;
    std::size_t piece_ = 0;
    bool drop_ = false;
    std::optional<LoopbackServer> server_; ///< Goes first, and its threads with it.
};

INSTANTIATE_TEST_SUITE_P(, HttpClientChunked, testing::Bool(), [](const auto& instance) {
    return std::string(instance.param ? "OverTls" : "InTheClear");
});

} // namespace

TEST_P(HttpClientChunked, HandsOutAWholeBodyOfAnySize) {
    for (const std::size_t size :
         {0, 1, 5, 121, 122, 127, 128, 129, 8000, 8192, 65535, 65536, 65537, 300000}) {
        std::string data(size, 'd');
        const auto response = receive((size ? chunk(data) : "") + "0\r\n\r\n");
        ASSERT_TRUE(response) << size << ": " << response.error().message;
        EXPECT_EQ(response->body, data);
    }
    const auto response = receive(chunk("one") + chunk("two") + "0\r\n\r\n", 1);
    ASSERT_TRUE(response) << response.error().message;
    EXPECT_EQ(response->body, "onetwo");
}

TEST_P(HttpClientChunked, UnderstandsExtensionsTrailersAndUnusualSizes) {
    for (const std::string& body :
         {std::string("5;a=b\r\nhello\r\n0;c=\"d e\"\r\n\r\n"),
          std::string("5 ;a\r\nhello\r\n0\r\nX-One: 1\r\nX-Two: 2\r\n\r\n"),
          std::string("0005\r\nhello\r\n000\r\n\r\n"), std::string("5  \r\nhello\r\n0 \r\n\r\n")}) {
        const auto response = receive(body);
        ASSERT_TRUE(response) << body << ": " << response.error().message;
        EXPECT_EQ(response->body, "hello");
    }
}

TEST_P(HttpClientChunked, RefusesABodyCutAnywhere) {
    const std::string whole = chunk("hello") + "A;x=y\r\n0123456789\r\n0\r\nX-Trailer: t\r\n\r\n";
    const std::size_t step = GetParam() ? 9 : 1; // TLS takes its time to connect.
    for (const bool drop : {false, true}) {
        for (std::size_t length = 0; length < whole.size(); length += step) {
            const auto response = receive(whole.substr(0, length), 1 << 30, drop);
            ASSERT_FALSE(response) << "cut after " << length;
        }
    }
    const auto large = chunk(std::string(65536, 'd'));
    EXPECT_FALSE(receive(large));
    EXPECT_FALSE(receive(large + "0\r\n"));
    EXPECT_FALSE(receive(large.substr(0, 40000)));
}

TEST_P(HttpClientChunked, RefusesMalformedFraming) {
    for (const std::string& framing :
         {std::string("5\r\nhello\r\nzz\r\nhello\r\n0\r\n\r\n"),
          std::string("-5\r\nhello\r\n0\r\n\r\n"), std::string("0x5\r\nhello\r\n0\r\n\r\n"),
          std::string("5\r\nhelloo\r\n0\r\n\r\n"), std::string("\r\n0\r\n\r\n"),
          std::string("5\nhello\n0\n\n"), std::string("10000000000000005\r\nhello\r\n0\r\n\r\n")})
        EXPECT_FALSE(receive(framing)) << framing;
}
