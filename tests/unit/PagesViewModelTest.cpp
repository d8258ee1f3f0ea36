#include "ViewModels/PagesViewModel.h"

#include "Platform/FileStore.h"
#include "support/GraphWorld.h"
#include "support/LongestTurn.h"
#include "support/MainLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>

using namespace tessaro;
using namespace tessaro::test;
using namespace std::chrono_literals;
using testing::ElementsAre, testing::HasSubstr, testing::IsEmpty, testing::Optional,
    testing::SizeIs;

namespace {

class PagesViewModelTest : public testing::Test {
protected:
    PagesViewModelTest() {
        world.store.saveAccounts({account, other});
        world.answerMe({200, R"({"id":"9","name":"Trang Chín"})", {}});
        world.answerPicture("9", {200, "picture of 9", {}});
        model.emplace(world.store, world.logger, world.clock, world.makeClient);
    }

    void add(const Account& owner, const std::string& token = "page-token") {
        std::optional<bool> done;
        finish(model->addPage(SecretText(token), owner), &done).detach();
        ASSERT_TRUE(runUntil([&] { return done.has_value(); }));
    }
    static Task<void> finish(Task<void> task, std::optional<bool>* done) {
        co_await std::move(task);
        *done = true;
    }
    std::optional<std::string> cached(const std::string& id) {
        return readFile(world.store.localAvatarURL(id));
    }

    GraphWorld world;
    const Account account = makeAccount("một"), other = makeAccount("hai");
    PageConfig a = makePage(account, "1"), b = makePage(other, "2"), c = makePage(account, "3");
    std::optional<PagesViewModel> model;
};

} // namespace

TEST_F(PagesViewModelTest, StartsEmptyAndShowsTheAccountsPagesInStoredOrder) {
    world.store.savePages({a, b, c});
    EXPECT_THAT(*model->pages, IsEmpty());
    model->loadPages(account.id);
    EXPECT_THAT(*model->pages, ElementsAre(a, c));
    EXPECT_EQ(*model->selectedPage, std::nullopt);
    model->clearPages();
    EXPECT_THAT(*model->pages, IsEmpty());
}

TEST_F(PagesViewModelTest, KeepsASelectionThatIsStillThereAsTheOldCopy) {
    world.store.savePages({a, b});
    model->loadPages(account.id);
    model->selectPage(a);
    auto renamed = a;
    renamed.pageName = "mới";
    world.store.savePages({renamed, b});
    model->loadPages(account.id);
    EXPECT_EQ((*model->selectedPage)->pageName, "Trang");
    model->loadPages(other.id);
    EXPECT_EQ(*model->selectedPage, std::nullopt);
}

TEST_F(PagesViewModelTest, FetchesOnlyThePicturesThatTheCacheLacks) {
    world.store.savePages({a, c});
    world.store.saveAvatarData("1", "kept");
    world.answerPicture("3", {200, "new", {}});
    std::vector<std::string> announced;
    int changes = 0;
    const auto observing = world.notifications.observe(
        DataStore::avatarDownloaded, [&](const Notification& notification) {
            announced.push_back(notification.userInfo.at("id"));
        });
    const ScopedConnection watching(model->changed.connect([&] { ++changes; }));
    model->loadPages(account.id);
    EXPECT_TRUE(runUntil([&] { return changes == 1; }));
    world.clock.advance(0ms);
    EXPECT_THAT(announced, testing::Contains("3"));
    EXPECT_EQ(cached("1"), "kept");
    EXPECT_EQ(cached("3"), "new");
    ASSERT_THAT(world.server.requests(), SizeIs(1));
    EXPECT_EQ(
        world.server.requests().front().target,
        "/v25.0/3/picture?type=normal&access_token=token-of-3");
}

TEST_F(PagesViewModelTest, LogsAPictureThatFailsAndTriesAgainAtTheNextLoad) {
    world.store.savePages({c});
    world.answerPicture("3", {404, "", {}});
    for (std::size_t load = 1; load <= 2; ++load) {
        model->loadPages(account.id);
        EXPECT_TRUE(runUntil([&] { return world.server.requests().size() == load; }));
        EXPECT_TRUE(runUntil([&] { return world.server.openConnections() == 0; }));
    }
    EXPECT_THAT(
        world.loggedLines(),
        HasSubstr("[ERROR] PagesVM: Lỗi tải avatar trang Trang: Lỗi kết nối (404).\n"));
    EXPECT_EQ(cached("3"), std::nullopt);
}

TEST_F(PagesViewModelTest, AddsThePageThatTheTokenDescribes) {
    world.store.savePages({a, b});
    model->loadPages(account.id);
    std::vector<bool> verifying;
    const auto watching =
        model->isVerifying.observe([&] { verifying.push_back(*model->isVerifying); });
    world.answerMe(
        {200, R"({"id":"9","name":"Trang Chín","picture":{"data":{"url":"https://p/9"}}})", {}});
    add(account, " exactly this ");
    EXPECT_THAT(verifying, ElementsAre(true, false));
    EXPECT_EQ(*model->verifyError, std::nullopt);
    ASSERT_THAT(*model->pages, SizeIs(2));
    const PageConfig added = model->pages->back();
    EXPECT_THAT(*model->selectedPage, Optional(added));
    ASSERT_THAT(world.newStore().loadPages(), ElementsAre(b, a, added));
    const auto written = world.newStore().loadPages().back();
    EXPECT_EQ(written.accountId, account.id);
    EXPECT_EQ(written.pageToken, SecretText(" exactly this "));
    EXPECT_EQ(written.pageId, PageId{"9"});
    EXPECT_EQ(written.pageName, "Trang Chín");
    EXPECT_EQ(written.pageAvatarUrl, "https://p/9");
    EXPECT_TRUE(written.isConnected);
    EXPECT_EQ(written.createdAt, world.clock.now());
    EXPECT_TRUE(runUntil([&] { return cached("9").has_value(); }));
    EXPECT_EQ(cached("9"), "picture of 9");
}

TEST_F(PagesViewModelTest, KeepsAPageWhosePictureCannotBeHad) {
    world.answerPicture("9", {500, "{}", {}});
    add(account);
    EXPECT_EQ(model->pages->back().pageAvatarUrl, "");
    const std::string complaint =
        "PagesVM: Lỗi tải avatar khi thêm trang Trang Chín: Lỗi Graph API (500)\n";
    EXPECT_TRUE(runUntil([&] { return world.loggedLines().ends_with(complaint); }));
    EXPECT_THAT(world.newStore().loadPages(), ElementsAre(model->pages->back()));
}

TEST_F(PagesViewModelTest, RefusesAPageThatIsThereAlready) {
    world.store.savePages({makePage(account, "9")});
    world.store.saveAvatarData("9", "kept");
    model->loadPages(account.id);
    add(account);
    EXPECT_EQ(*model->verifyError, "Page \"Trang Chín\" đã tồn tại trong tài khoản này.");
    EXPECT_FALSE(*model->isVerifying);
    EXPECT_THAT(*model->pages, SizeIs(1));
    EXPECT_EQ(*model->selectedPage, std::nullopt);
    EXPECT_THAT(world.loggedLines(), testing::Not(HasSubstr("PagesVM")));
    EXPECT_EQ(cached("9"), "kept");
}

TEST_F(PagesViewModelTest, ReportsAndLogsWhyATokenIsRefused) {
    world.answerMe({400, R"({"error":{"message":"Bad page-token","code":190}})", {}});
    add(account);
    EXPECT_EQ(*model->verifyError, "Bad …");
    EXPECT_FALSE(*model->isVerifying);
    EXPECT_THAT(world.loggedLines(), HasSubstr("[ERROR] PagesVM: Lỗi khi thêm trang: Bad …\n"));
    EXPECT_THAT(world.newStore().loadPages(), IsEmpty());

    world.answerMe({200, R"({"id":"9","name":"Trang Chín"})", {}});
    add(account);
    EXPECT_EQ(*model->verifyError, std::nullopt);
}

TEST_F(PagesViewModelTest, KeepsEveryStoredPageWhenNoAccountIsShown) {
    world.store.savePages({a, b});
    model->loadPages(account.id);
    model->clearPages();
    add(account);
    EXPECT_THAT(world.newStore().loadPages(), ElementsAre(a, b, model->pages->back()));
}

TEST_F(PagesViewModelTest, MovesALostSelectionToTheFirstPageLeft) {
    world.store.savePages({a, b, c});
    model->loadPages(account.id);
    model->selectPage(c);
    model->deletePage(model->pages->back());
    EXPECT_THAT(*model->selectedPage, Optional(a));
    model->deletePage(a);
    EXPECT_EQ(*model->selectedPage, std::nullopt);
    EXPECT_THAT(world.newStore().loadPages(), ElementsAre(b));
}

TEST_F(PagesViewModelTest, StillKeepsThePicturesOfAnAccountNoLongerShown) {
    world.store.savePages({a, b});
    world.answerPicture("1", {200, "late", {}});
    world.answerPicture("2", {200, "other", {}});
    model->loadPages(account.id);
    model->loadPages(other.id);
    EXPECT_TRUE(runUntil([&] { return cached("1") && cached("2"); }));
    EXPECT_EQ(cached("1"), "late");
}

TEST_F(PagesViewModelTest, MayBeDroppedWhileItsRequestsRun) {
    std::vector<PageConfig> many;
    for (int i = 0; i < 20; ++i)
        many.push_back(makePage(account, std::to_string(100 + i)));
    world.store.savePages(many);
    world.server.handle("*", [](ServerConnection& connection, const ReceivedRequest&) {
        connection.pause(5ms);
        connection.write("HTTP/1.1 200 OK\r\nContent-Length: 1\r\n\r\nx");
    });
    model->loadPages(account.id);
    model->addPage(SecretText("page-token"), account).detach();
    model.reset();
    EXPECT_TRUE(runUntil([&] {
        return world.server.requests().size() == 21 && world.server.openConnections() == 0;
    }));
    EXPECT_THAT(world.newStore().loadPages(), SizeIs(20));
}

TEST_F(PagesViewModelTest, LoadsFiveHundredPagesWithoutStallingTheLoop) {
    std::vector<PageConfig> many;
    for (int i = 0; i < 500; ++i)
        many.push_back(makePage(account, std::to_string(1000 + i)));
    world.store.savePages(many);
    world.server.handle("*", [](ServerConnection& connection, const ReceivedRequest&) {
        connection.write("HTTP/1.1 200 OK\r\nContent-Length: 1\r\n\r\nx");
    });
    LongestTurn turn;
    model->loadPages(account.id);
    std::size_t arrived = 0;
    const ScopedConnection watching(model->changed.connect([&] { ++arrived; }));
    EXPECT_TRUE(runUntil(
        [&] {
            turn.beat();
            return arrived == 500;
        },
        60s));
    // The server notices a moment late that one was closed.
    EXPECT_LE(world.server.mostOpenConnections(), 12u);
    EXPECT_EQ(world.server.connectionCount(), 500u);
    EXPECT_LT(turn.longest(), 500ms);
}
