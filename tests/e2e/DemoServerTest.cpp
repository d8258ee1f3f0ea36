#include "DemoServer.h"

#include "Platform/HttpClient.h"
#include "Platform/JsonReader.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>

using namespace tessaro;
using nlohmann::json;

namespace {

class DemoServer : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server_.listen(0)); }

    HttpResponse get(const std::string& path) { return send({"GET", server_.origin() + path}); }
    HttpResponse post(const std::string& path, const std::string& body) {
        return send({"POST", server_.origin() + path, "application/json", body});
    }
    json getJson(const std::string& path) { return json::parse(get(path).body); }

    HttpResponse send(HttpRequest request) {
        return test::await(http_.send(std::move(request))).value_or(HttpResponse{});
    }

    demo::DemoServer server_;
    HttpClient http_{HttpOptions{}};
};

TEST_F(DemoServer, TellsUserTokensPageTokensAndBadTokensApart) {
    const std::string accounts = "/v25.0/me/accounts?fields=id,name,access_token&access_token=";
    EXPECT_EQ(getJson(accounts + "demo-user-token")["data"].size(), 3);
    EXPECT_EQ(getJson(accounts + "demo-single-token")["data"].size(), 1);
    EXPECT_EQ(get(accounts + "demo-page-token").status, 400);
    EXPECT_EQ(getJson("/v25.0/me?access_token=demo-page-token")["name"], "Bếp Nhà Lúa");

    const auto refused = get("/v25.0/me?access_token=demo");
    EXPECT_EQ(refused.status, 400);
    const json error = json::parse(refused.body)["error"];
    EXPECT_EQ(error["code"], 190);
    EXPECT_EQ(error["message"], "Invalid OAuth access token - Cannot parse access token");
}

TEST_F(DemoServer, GivesEveryManagedPageATokenThatWorksAPictureOfItsOwnAndAnInbox) {
    std::set<std::string> pictures;
    const json pages =
        getJson("/v25.0/me/accounts?fields=id,name,access_token&access_token=demo-user-token");
    for (const json& page : pages["data"]) {
        const std::string id = page["id"];
        const std::string token = "access_token=" + page["access_token"].get<std::string>();
        EXPECT_EQ(getJson("/v25.0/me?" + token)["id"], id);
        const auto picture = get("/v25.0/" + id + "/picture?type=normal&" + token);
        EXPECT_EQ(picture.status, 200);
        EXPECT_TRUE(picture.body.starts_with("\x89PNG"));
        pictures.insert(picture.body);
        EXPECT_FALSE(
            getJson("/latest/inbox/conversations?asset_id=" + id)["conversations"].empty());
    }
    EXPECT_EQ(pictures.size(), 3);
}

TEST_F(DemoServer, KeepsTheLogsSentInAndRefusesHalfOfOne) {
    const json log{{"uuid", "A"}, {"filename", "A-01-02-2025.log"}, {"content", "dòng một\n"}};
    EXPECT_EQ(post("/api/support/upload-log", log.dump()).status, 200);
    EXPECT_EQ(post("/api/support/upload-log", R"({"uuid":"A"})").status, 400);
    EXPECT_EQ(getJson("/demo/uploads"), json::array({log}));
}

TEST_F(DemoServer, KeepsTheAnswersOfOneSiteBackUntilTheyAreReleased) {
    post("/demo/hold?site=inbox", "");
    auto page = http_.send(HttpRequest{"GET", server_.origin() + "/latest/inbox/all?asset_id=1"});
    EXPECT_EQ(get("/v25.0/me?access_token=demo-page-token").status, 200);
    EXPECT_FALSE(page.isDone());
    post("/demo/release?site=inbox", "");
    EXPECT_EQ(test::await(std::move(page)).value_or(HttpResponse{}).status, 200);
    EXPECT_EQ(get("/latest/inbox/all?asset_id=1").status, 200);
}

} // namespace
