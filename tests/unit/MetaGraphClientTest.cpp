#include "Services/MetaGraphClient.h"

#include "support/GraphWorld.h"

#include <gmock/gmock.h>

using namespace tessaro;
using namespace tessaro::test;
using testing::ElementsAre;

namespace {

class MetaGraphClientTest : public testing::Test {
protected:
    std::shared_ptr<MetaGraphClient> clientFor(const std::string& token = "EAAB") {
        return world.makeClient(SecretText(token), std::nullopt);
    }
    std::string lastTarget() { return server.requests().back().target; }
    static Error errorOf(const auto& result) { return result ? Error{} : result.error(); }
    Error errorOfPageInfo(int status, const std::string& body) {
        world.answerMe({status, body, {}});
        return errorOf(await(clientFor()->fetchPageInfo()));
    }

    GraphWorld world;
    LoopbackServer& server = world.server;
};

} // namespace

TEST_F(MetaGraphClientTest, AsksForTheTokensObjectUntilItHasIt) {
    const auto client = clientFor("a b#c+d=e");
    world.answerMe({500, "", {}});
    EXPECT_FALSE(await(client->fetchPageInfo()));
    EXPECT_EQ(lastTarget(), "/v25.0/me?fields=id,name,picture&access_token=a%20b%23c+d=e");
    world.answerMe({200, R"({"id":"7","name":"Trang","picture":{"data":{"url":"u","x":1}}})", {}});
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(
            await(client->fetchPageInfo()).value(),
            (PageInfo{PageId{"7"}, "Trang", PagePicture{{"u"}}}));
    EXPECT_EQ(server.requests().size(), 2u);
}

TEST_F(MetaGraphClientTest, ListsTheManagedPagesInTheOrderReceived) {
    world.answerAccounts(
        {200,
         R"({"data":[
        {"id":"2","name":"Hai","access_token":"t2","picture":{"data":{"url":"u2"}}},
        {"id":"1","name":"Một","access_token":"t1","picture":{"data":{}}},
        {"id":"3","name":"Ba","access_token":"t3","picture":null}],
        "paging":{"next":"http://elsewhere.example/","cursors":{"after":"a&access_token=b=="}}})",
         {}});
    using Page = MetaGraphClient::ResolvedPage;
    const auto managed = await(clientFor()->fetchManagedPages()).value();
    EXPECT_THAT(
        managed.pages, ElementsAre(
                           Page{PageId{"2"}, "Hai", SecretText("t2"), "u2"},
                           Page{PageId{"1"}, "Một", SecretText("t1"), std::nullopt},
                           Page{PageId{"3"}, "Ba", SecretText("t3"), std::nullopt}));
    EXPECT_EQ(server.requests().size(), 1u) << "no further page of the list is asked for";
    const std::string request = "/v25.0/me/accounts?fields=id,name,access_token,picture";
    EXPECT_EQ(lastTarget(), request + "&access_token=EAAB");

    // Whoever has no next part, or tells it in another way, has no more Pages.
    for (const char* paging :
         {R"({"next":"n"})", R"({"next":"n","cursors":[]})",
          R"({"next":"n","cursors":{"after":7}})", R"({"cursors":{"after":"a"}})",
          R"({"next":null,"cursors":{"after":"a"}})", "[]", "1"}) {
        world.answerAccounts({200, std::string(R"({"data":[],"paging":)") + paging + "}", {}});
        EXPECT_EQ(await(clientFor()->fetchManagedPages(managed.next)).value().next, "") << paging;
    }
    EXPECT_EQ(lastTarget(), request + "&after=a%26access_token%3Db%3D%3D&access_token=EAAB");
}

TEST_F(MetaGraphClientTest, TellsFailuresAsTheGraphApiPutsThem) {
    const struct {
        int status;
        const char* body;
        int code;
        const char* message;
    } failures[] = {
        {400, R"({"error":{"message":"Invalid OAuth.","type":"OAuthException","code":190}})", 190,
         "Invalid OAuth."},
        {403, R"({"error":{}})", 403, "Lỗi Graph API (403)"},
        {500, "{}", 500, "Lỗi Graph API (500)"},
        {404, R"({"error":{"message":null,"code":100}})", 100, "Lỗi Graph API (404)"},
        {502, "<html>", 502, "Lỗi kết nối (502)."},
        {502, R"({"error":"text"})", 502, "Lỗi kết nối (502)."},
        {502, R"({"error":{"code":"190"}})", 502, "Lỗi kết nối (502)."},
        {502, R"({"error":{"message":1}})", 502, "Lỗi kết nối (502)."},
        {502, R"({"error":{"type":[]}})", 502, "Lỗi kết nối (502)."},
        // A redirect without a target is no success.
        {304, "", 304, "Lỗi kết nối (304)."},
    };
    for (const auto& [status, body, code, message] : failures)
        EXPECT_EQ(errorOfPageInfo(status, body), (Error{"MetaGraph", code, message})) << body;
}

TEST_F(MetaGraphClientTest, FailsInDecodingWhenASuccessHoldsSomethingElse) {
    for (const auto* body :
         {R"({"error":{"message":"M","code":190}})", R"({"id":7,"name":"n"})", R"({"id":"7"})",
          R"({"id":"7","name":"n","picture":{}})", R"({"id":"7","name":"n","picture":[]})",
          R"({"id":"7","name":"n","picture":{"data":{}}})", "[]", ""})
        EXPECT_EQ(errorOfPageInfo(200, body).domain, "JSON") << body;
    for (const auto* body :
         {R"({"data":{}})", R"({})", R"({"data":[{"id":"1","name":"n"}]})", R"({"data":[null]})",
          R"({"data":[{"id":"1","name":"n","access_token":"t","picture":{"data":{"url":1}}}]})"}) {
        world.answerAccounts({200, body, {}});
        EXPECT_EQ(errorOf(await(clientFor()->fetchManagedPages())).domain, "JSON") << body;
    }
}

TEST_F(MetaGraphClientTest, SendsTheTokenToNoOtherHostWhateverTheIdHolds) {
    LoopbackServer other("", "127.0.0.2");
    const auto elsewhere = other.origin().substr(7);
    for (const std::string& id :
         {std::string("../../x"), "/" + elsewhere + "/x", "@" + elsewhere, std::string("?a=b"),
          "http://" + elsewhere + "/"}) {
        std::ignore = await(clientFor()->fetchCustomerAvatarData(PageId{id}));
        EXPECT_EQ(other.connectionCount(), 0u) << id;
    }
    const auto asked = server.connectionCount();
    for (const auto& id : {"a b", "1\r\nHost: evil", "%zz", "<x>\x01", "trang-é"})
        EXPECT_EQ(
            errorOf(await(clientFor()->fetchCustomerAvatarData(PageId{id}))),
            (Error{"MetaGraph", 400, "Invalid URL"}))
            << id;
    EXPECT_EQ(server.connectionCount(), asked);
}

TEST_F(MetaGraphClientTest, GoesThroughTheAccountsProxyOnlyWhenItIsOnAndComplete) {
    LoopbackServer proxy;
    proxy.answer(world.baseUrl + "/me", R"({"id":"7","name":"Of the proxy"})");
    world.answerMe({200, R"({"id":"7","name":"Directly"})", {}});
    auto account = proxiedBy(proxy.port());
    account.proxyUsername = "user";
    account.proxyPassword = SecretText("password");
    const auto ask = [&](const Account& owner) {
        return await(world.makeClient(SecretText("token"), owner)->fetchPageInfo());
    };
    EXPECT_EQ(ask(account).value().name, "Of the proxy");
    EXPECT_FALSE(proxy.requests().front().headers.contains("proxy-authorization"));
    auto off = account, hostless = account, portless = account;
    off.proxyEnabled = false;
    hostless.proxyHost.clear();
    portless.proxyPort = 0;
    for (const auto& owner : {off, hostless, portless})
        EXPECT_EQ(ask(owner).value().name, "Directly");
}
