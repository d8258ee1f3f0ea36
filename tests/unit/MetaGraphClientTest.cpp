#include "Services/MetaGraphClient.h"

#include "Services/TokenRedaction.h"
#include "support/MainLoop.h"
#include "support/RecordingProxy.h"
#include "support/StoreWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessaro;
using namespace tessaro::test;
using testing::ElementsAre, testing::IsEmpty, testing::SizeIs;

namespace {

class MetaGraphClientTest : public testing::Test {
protected:
    std::shared_ptr<MetaGraphClient>
    clientFor(const std::string& token, const std::optional<Account>& account = std::nullopt) {
        return std::make_shared<MetaGraphClient>(
            server.origin() + "/v25.0", SecretText(token), account);
    }
    std::string targetOf(std::size_t request) { return server.requests().at(request).target; }
    Error errorOf(int status, const std::string& body) {
        server.answer("/v25.0/me", {status, body, {}});
        const auto info = await(clientFor("EAAB")->fetchPageInfo());
        return info ? Error{} : info.error();
    }

    LoopbackServer server;
};

Task<void> download(std::shared_ptr<MetaGraphClient> client, int* done) {
    const PageId id{"1"};
    const auto picture = co_await client->fetchCustomerAvatarData(id);
    *done += picture.has_value();
}

} // namespace

TEST_F(MetaGraphClientTest, AsksForTheTokensObjectOnce) {
    server.answer("/v25.0/me", R"({"id":"7","name":"Trang","picture":{"data":{"url":"u","x":1}}})");
    auto client = clientFor("EAAB");
    const PageInfo expected{PageId{"7"}, "Trang", PagePicture{{"u"}}};
    for (int i = 0; i < 2; ++i) {
        const auto info = await(client->fetchPageInfo());
        ASSERT_TRUE(info) << info.error().message;
        EXPECT_EQ(*info, expected);
    }
    ASSERT_THAT(server.requests(), SizeIs(1));
    EXPECT_EQ(targetOf(0), "/v25.0/me?fields=id,name,picture&access_token=EAAB");
}

TEST_F(MetaGraphClientTest, AsksAgainAfterAFailure) {
    auto client = clientFor("EAAB");
    server.answer("/v25.0/me", {500, "", {}});
    EXPECT_FALSE(await(client->fetchPageInfo()));
    server.answer("/v25.0/me", R"({"id":"7","name":"Trang"})");
    const auto info = await(client->fetchPageInfo());
    ASSERT_TRUE(info) << info.error().message;
    EXPECT_EQ(info->picture, std::nullopt);
}

TEST_F(MetaGraphClientTest, ListsTheManagedPagesInTheOrderReceived) {
    server.answer("/v25.0/me/accounts", R"({"data":[
        {"id":"2","name":"Hai","access_token":"t2","picture":{"data":{"url":"u2"}}},
        {"id":"1","name":"Một","access_token":"t1","picture":{"data":{}}},
        {"id":"3","name":"Ba","access_token":"t3","picture":null}],"paging":{"next":"n"}})");
    auto client = clientFor("EAAB");
    for (std::size_t i = 0; i < 2; ++i) {
        const auto pages = await(client->fetchManagedPages());
        ASSERT_TRUE(pages) << pages.error().message;
        using Page = MetaGraphClient::ResolvedPage;
        EXPECT_THAT(
            *pages, ElementsAre(
                        Page{PageId{"2"}, "Hai", SecretText("t2"), "u2"},
                        Page{PageId{"1"}, "Một", SecretText("t1"), std::nullopt},
                        Page{PageId{"3"}, "Ba", SecretText("t3"), std::nullopt}));
        EXPECT_EQ(
            targetOf(i),
            "/v25.0/me/accounts?fields=id,name,access_token,picture&access_token=EAAB");
    }
    server.answer("/v25.0/me/accounts", R"({"data":[]})");
    const auto none = await(client->fetchManagedPages());
    ASSERT_TRUE(none) << none.error().message;
    EXPECT_THAT(*none, IsEmpty());
}

TEST_F(MetaGraphClientTest, YieldsThePicturesBytesUnchanged) {
    const std::string bytes("\xff\xd8\0\r\n\xff", 6);
    server.answer("/v25.0/123/picture", bytes);
    const auto picture = await(clientFor("EAAB")->fetchCustomerAvatarData(PageId{"123"}));
    ASSERT_TRUE(picture) << picture.error().message;
    EXPECT_EQ(*picture, bytes);
    EXPECT_EQ(targetOf(0), "/v25.0/123/picture?type=normal&access_token=EAAB");
}

TEST_F(MetaGraphClientTest, EncodesTheTokenForAQueryAndNothingThatAQueryAllows) {
    EXPECT_EQ(encodedForQuery(SecretText("aZ09-._~!$&'()*+,;=:@/?")), "aZ09-._~!$&'()*+,;=:@/?");
    EXPECT_EQ(
        encodedForQuery(SecretText(std::string(" #%\"<>[]^`{|}\\é\n\0", 18))),
        "%20%23%25%22%3C%3E%5B%5D%5E%60%7B%7C%7D%5C%C3%A9%0A%00");
    server.answer("/v25.0/me", "{}");
    std::ignore = await(clientFor("a b#c+d=e")->fetchPageInfo());
    EXPECT_EQ(targetOf(0), "/v25.0/me?fields=id,name,picture&access_token=a%20b%23c+d=e");
}

TEST_F(MetaGraphClientTest, TellsFailuresAsTheGraphApiPutsThem) {
    const std::string rejected =
        R"({"error":{"message":"Invalid OAuth access token.","type":"OAuthException","code":190}})";
    EXPECT_EQ(errorOf(400, rejected), (Error{"MetaGraph", 190, "Invalid OAuth access token."}));
    EXPECT_EQ(errorOf(403, R"({"error":{}})"), (Error{"MetaGraph", 403, "Lỗi Graph API (403)"}));
    EXPECT_EQ(errorOf(500, "{}"), (Error{"MetaGraph", 500, "Lỗi Graph API (500)"}));
    EXPECT_EQ(
        errorOf(404, R"({"error":{"message":null,"code":100}})"),
        (Error{"MetaGraph", 100, "Lỗi Graph API (404)"}));
    const Error unreadable{"MetaGraph", 502, "Lỗi kết nối (502)."};
    for (const auto* body :
         {"<html>", "", "[]", R"({"error":"text"})", R"({"error":{"code":"190"}})",
          R"({"error":{"message":1}})", R"({"error":{"type":[]}})", R"({"error":{"code":1.5}})"})
        EXPECT_EQ(errorOf(502, body), unreadable) << body;
    // A redirect that leads nowhere is no success either.
    EXPECT_EQ(errorOf(304, ""), (Error{"MetaGraph", 304, "Lỗi kết nối (304)."}));
}

TEST_F(MetaGraphClientTest, TellsAnAnswerThatIsNotHttpFromAFailedTransfer) {
    server.handleConnections([](ServerConnection& connection) {
        connection.write("SSH-2.0-Server\r\n\r\n");
        connection.waitForClose();
    });
    EXPECT_EQ(errorOf(200, "{}"), (Error{"MetaGraph", 500, "Phản hồi không hợp lệ."}));
}

TEST_F(MetaGraphClientTest, FailsInDecodingWhenASuccessHoldsSomethingElse) {
    for (const auto* body :
         {R"({"error":{"message":"M","code":190}})", R"({"id":7,"name":"n"})", R"({"id":"7"})",
          R"({"id":"7","name":null})", R"({"id":"7","name":"n","picture":{}})",
          R"({"id":"7","name":"n","picture":{"data":{}}})", "[]", ""})
        EXPECT_EQ(errorOf(200, body).domain, "JSON") << body;
    for (const auto* body :
         {R"({"data":{}})", R"({})", R"({"data":[{"id":"1","name":"n"}]})", R"({"data":[null]})",
          R"({"data":[{"id":"1","name":"n","access_token":"t","picture":{"data":{"url":1}}}]})"}) {
        server.answer("/v25.0/me/accounts", body);
        const auto pages = await(clientFor("token")->fetchManagedPages());
        ASSERT_FALSE(pages) << body;
        EXPECT_EQ(pages.error().domain, "JSON") << body;
    }
    server.answer("/v25.0/1/picture", R"({"error":{"message":"M"}})");
    const auto picture = await(clientFor("token")->fetchCustomerAvatarData(PageId{"1"}));
    ASSERT_TRUE(picture);
    EXPECT_EQ(*picture, R"({"error":{"message":"M"}})");
}

TEST_F(MetaGraphClientTest, RefusesAnIdThatMakesNoAddressWithoutSending) {
    for (const auto& id : {"a b", "1\r\nHost: evil", "%zz", "<x>\x01", "trang-é"}) {
        const auto picture = await(clientFor("token")->fetchCustomerAvatarData(PageId{id}));
        ASSERT_FALSE(picture) << id;
        EXPECT_EQ(picture.error(), (Error{"MetaGraph", 400, "Invalid URL"})) << id;
    }
    EXPECT_EQ(server.connectionCount(), 0u);
}

TEST_F(MetaGraphClientTest, SendsTheTokenToNoOtherHostWhateverTheIdHolds) {
    LoopbackServer other(std::nullopt, "127.0.0.2");
    const auto elsewhere = "127.0.0.2:" + std::to_string(other.port());
    for (const std::string& id :
         {std::string("../../x"), "/" + elsewhere + "/x", "//" + elsewhere, "@" + elsewhere,
          std::string("?a=b"), std::string("#x"), "http://" + elsewhere + "/",
          std::string("..%2F..%2Fx")}) {
        std::ignore = await(clientFor("token")->fetchCustomerAvatarData(PageId{id}));
        EXPECT_EQ(other.connectionCount(), 0u) << id;
    }
    // Inserted as it stands.
    EXPECT_EQ(
        server.requests().back().target,
        "/v25.0/..%2F..%2Fx/picture?type=normal&access_token=token");
}

TEST_F(MetaGraphClientTest, GoesThroughTheAccountsProxyOnlyWhenItIsOnAndComplete) {
    RecordingProxy proxy;
    server.answer("/v25.0/me", R"({"id":"7","name":"Trang"})");
    auto account = makeAccount();
    account.proxyHost = "127.0.0.1";
    account.proxyPort = proxy.address().port;
    account.proxyUsername = "user";
    account.proxyPassword = SecretText("password");
    account.proxyEnabled = true;
    const auto asks = [&](const Account& owner) {
        const auto before = proxy.requests().size();
        EXPECT_TRUE(await(clientFor("token", owner)->fetchPageInfo()));
        return proxy.requests().size() - before;
    };
    EXPECT_EQ(asks(account), 1u);
    EXPECT_FALSE(proxy.requests().front().headers.contains("proxy-authorization"));
    auto off = account, hostless = account, portless = account;
    off.proxyEnabled = false;
    hostless.proxyHost.clear();
    portless.proxyPort = 0;
    EXPECT_EQ(asks(off) + asks(hostless) + asks(portless), 0u);

    proxy.askForCredentials();
    const auto refused = await(clientFor("token", account)->fetchPageInfo());
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error(), (Error{"MetaGraph", 407, "Lỗi kết nối (407)."}));
}

TEST_F(MetaGraphClientTest, DownloadsAtMostSixPicturesAtATime) {
    std::atomic<int> running = 0, most = 0;
    server.handle("*", [&](ServerConnection& connection, const ReceivedRequest&) {
        most = std::max<int>(most, ++running);
        connection.pause(std::chrono::milliseconds(2));
        --running;
        connection.write("HTTP/1.1 200 OK\r\nContent-Length: 1\r\n\r\nx");
    });
    constexpr int count = 100;
    int done = 0;
    for (int i = 0; i < count; ++i)
        download(clientFor("token"), &done).detach();
    EXPECT_TRUE(runUntil([&] { return done == count; }));
    EXPECT_LE(most, 6);
    EXPECT_GE(most, 2);
    // The server notices a moment late that one was closed.
    EXPECT_LE(server.mostOpenConnections(), 12u);
    EXPECT_EQ(server.connectionCount(), static_cast<std::size_t>(count));
}

TEST_F(MetaGraphClientTest, MayBeDroppedWhileItsRequestsRun) {
    auto client = clientFor("token");
    server.handle("*", [](ServerConnection& connection, const ReceivedRequest&) {
        connection.pause(std::chrono::milliseconds(20));
        connection.write(
            "HTTP/1.1 200 OK\r\nContent-Length: 22\r\n\r\n{\"id\":\"7\",\"name\":\"Tr\"}");
    });
    auto info = client->fetchPageInfo();
    auto pages = client->fetchManagedPages();
    auto picture = client->fetchCustomerAvatarData(PageId{"1"});
    client.reset();
    EXPECT_TRUE(await(std::move(info)));
    EXPECT_FALSE(await(std::move(pages)));
    EXPECT_TRUE(await(std::move(picture)));
    EXPECT_TRUE(runUntil([&] { return server.openConnections() == 0; }));
}
