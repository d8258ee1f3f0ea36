#include "ViewModels/AddPageFlow.h"

#include "support/GraphWorld.h"

#include <gmock/gmock.h>

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
