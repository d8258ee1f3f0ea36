#include "ViewModels/AddPageFlow.h"

#include "support/GraphWorld.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using namespace tessaro;
using namespace tessaro::test;
using testing::SizeIs;

namespace {

class AddPageFlowTest : public testing::Test {
protected:
    AddPageFlowTest() {
        world.answerMe({200, R"({"id":"9","name":"Trang Chín"})", {}});
        world.answerAccounts({400, R"({"error":{"message":"no \"pasted token\" here"}})", {}});
        world.store.saveAccounts({account});
        pages.loadPages(account.id);
        reopen();
    }

    void reopen() {
        flow.emplace(pages, account, world.makeClient, [this] {
            ++dismissed;
            flow.reset();
        });
    }
    void verify(const std::string& token = " \n pasted token\u00a0\r\n") {
        flow->token.set(token);
        flow->verifyToken();
        EXPECT_TRUE(runUntil([&] { return !*flow->isVerifying; }));
    }

    GraphWorld world;
    const Account account = makeAccount();
    PagesViewModel pages{world.store, world.logger, world.clock, world.makeClient};
    int dismissed = 0;
    std::optional<AddPageFlow> flow;
};

} // namespace

TEST_F(AddPageFlowTest, ShowsWhyATokenIsRefusedAndPutsOnlyTheFirstReasonOut) {
    world.answerMe({502, "<html>", {}});
    testing::internal::CaptureStdout();
    verify();
    EXPECT_EQ(
        testing::internal::GetCapturedStdout(),
        "AddPageSheet: me/accounts failed (likely Page token): no \"…\" here\n");
    EXPECT_TRUE(world.server.requests().back().target.ends_with("=pasted%20token"));
    EXPECT_EQ(*flow->tokenType, TokenType::unknown);
    EXPECT_EQ(*flow->errorMessage, "Lỗi kết nối (502).");
    EXPECT_FALSE(flow->canAdd());
    EXPECT_THAT(world.loggedLines(), testing::Not(testing::HasSubstr("AddPageSheet")));
}

TEST_F(AddPageFlowTest, MayBeDroppedWhileItVerifiesOrAdds) {
    flow->token.set("pasted token");
    flow->verifyToken();
    flow.reset();
    const auto& server = world.server;
    EXPECT_TRUE(runUntil([&] {
        return server.requestCount("/v25.0/me/accounts") == 1 && server.openConnections() == 0;
    }));
    EXPECT_EQ(server.requestCount("/v25.0/me"), 0u) << "the result was dropped";

    reopen();
    verify();
    flow->addSelectedPage();
    flow.reset();
    EXPECT_TRUE(runUntil([&] { return !*pages.isVerifying; }));
    EXPECT_EQ(dismissed, 0);
    EXPECT_THAT(*pages.pages, SizeIs(1)) << "the Pages model goes on by itself";
}

TEST_F(AddPageFlowTest, LoadsMorePagesEachOnceUntilTheListEndsOrIsLong) {
    // Part N follows the cursor "N". Some parts bring nothing new.
    const auto part = [](int first, int last, const std::string& next) {
        auto data = nlohmann::json::array();
        for (int i = first; i <= last; ++i)
            data.push_back({{"id", std::to_string(i)}, {"name", ""}, {"access_token", "t"}});
        nlohmann::json answer{{"data", data}};
        if (!next.empty())
            answer["paging"] = {{"next", "n"}, {"cursors", {{"after", next}}}};
        return LoopbackServer::Answer{200, answer.dump(), {}};
    };
    const auto load = [&](const LoopbackServer::Answer& answer) {
        world.answerAccounts(answer);
        flow->loadMorePages();
        EXPECT_TRUE(runUntil([&] { return !*flow->isLoadingMore; }));
        return flow->resolvedPages->size();
    };
    world.answerAccounts(part(1, 2, "1"));
    verify();
    const std::size_t before = world.server.requests().size();
    EXPECT_EQ(load({500, "", {}}), 2u);
    EXPECT_EQ(*flow->errorMessage, "Lỗi kết nối (500).");
    EXPECT_EQ(load(part(1, 0, "2")), 2u) << "Parts without Pages are no end.";
    EXPECT_EQ(world.server.requests().size(), before + 11) << "But it gives up at some time.";
    EXPECT_EQ(load(part(2, 4, "3")), 4u);
    EXPECT_EQ(*flow->errorMessage, std::nullopt);
    EXPECT_EQ(load(part(5, 1000, "4")), AddPageFlow::mostPages);
    EXPECT_FALSE(*flow->hasMorePages);
    EXPECT_EQ(flow->resolvedPages->back().id.text, "500");

    // Another verification meanwhile takes the place of the list.
    world.answerAccounts(part(1, 2, "1"));
    verify();
    world.server.hold("/v25.0/me/accounts");
    flow->loadMorePages();
    world.answerAccounts(part(7, 8, ""));
    verify("another token");
    world.server.release();
    EXPECT_TRUE(runUntil([&] { return world.server.openConnections() == 0; }));
    runPending();
    EXPECT_THAT(*flow->resolvedPages, SizeIs(2));
    EXPECT_FALSE(*flow->hasMorePages);
    EXPECT_FALSE(*flow->isLoadingMore);
}
