#include "ViewModels/PagesViewModel.h"

#include "Platform/FileStore.h"
#include "support/GraphWorld.h"

#include <gmock/gmock.h>

#include <chrono>

using namespace tessaro;
using namespace tessaro::test;
using namespace std::chrono_literals;
using testing::ElementsAre, testing::Field, testing::HasSubstr, testing::IsEmpty, testing::Optional,
    testing::SizeIs;

namespace {

class PagesViewModelTest : public testing::Test {
protected:
    PagesViewModelTest() {
        world.store.saveAccounts({account, other});
        world.answerMe(
            {200,
             R"({"id":"9","name":"Trang Chín","picture":{"data":{"url":"https://p/9"}}})",
             {}});
        world.server.answer("*", "a picture");
        model.emplace(
            world.store, world.logger, world.clock, world.makeClient,
            [](std::string_view bytes) { return bytes != "no picture"; });
    }

    /// Saves the Pages and loads those of the account.
    void show(const std::vector<PageConfig>& stored) {
        world.store.savePages(stored);
        model->loadPages(account.id);
    }
    void add(const std::string& token = "page-token") {
        const auto added = await(model->addPage(SecretText(token), account));
        EXPECT_EQ(added ? std::nullopt : std::optional(added.error().message), *model->verifyError);
    }
    std::vector<PageConfig> stored() { return world.newStore().loadPages(); }
    bool waitForLogged(int lines) {
        return runUntil([&] { return std::ranges::count(world.loggedLines(), '\n') == lines; });
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

TEST_F(PagesViewModelTest, ShowsTheAccountsPagesAndKeepsASelectionThatIsStillThereAsItWas) {
    show({a, b, c});
    EXPECT_THAT(*model->pages, ElementsAre(a, c));
    EXPECT_EQ(*model->selectedPage, std::nullopt);
    model->selectPage(a);
    auto renamed = a;
    renamed.pageName = "mới";
    show({renamed, b});
    EXPECT_EQ((*model->selectedPage)->pageName, "Trang");
    model->loadPages(other.id);
    EXPECT_EQ(*model->selectedPage, std::nullopt);
}

TEST_F(PagesViewModelTest, FetchesOnlyThePicturesThatTheCacheLacks) {
    world.store.saveAvatarData("1", "kept");
    world.store.saveAvatarData("3", "");
    int changes = 0;
    const ScopedConnection watching(model->changed.connect([&] { ++changes; }));
    show({a, c});
    model->loadPages(other.id); // A picture is kept although its account is no longer shown.
    EXPECT_TRUE(runUntil([&] { return changes == 1; }));
    EXPECT_EQ(cached("1"), "kept");
    EXPECT_EQ(cached("3"), "a picture");
    ASSERT_THAT(world.server.requests(), SizeIs(1));
    EXPECT_EQ(
        world.server.requests().front().target,
        "/v25.0/3/picture?type=normal&access_token=token-of-3");
}

TEST_F(PagesViewModelTest, LogsAPictureThatCannotBeHadAndTriesAgainAtTheNextLoad) {
    world.answerPicture("3", {404, "", {}});
    world.answerPicture("9", {500, "{}", {}});
    const auto waitForLines = [&](int lines, const std::string& last) {
        EXPECT_TRUE(waitForLogged(lines));
        EXPECT_THAT(
            world.loggedLines(),
            testing::EndsWith("[ERROR] PagesVM: Lỗi tải avatar " + last + "\n"));
        EXPECT_EQ(cached("3"), std::nullopt);
    };
    show({c});
    waitForLines(1, "trang Trang: Lỗi kết nối (404).");
    world.answerPicture("3", {200, "no picture", {}});
    show({c});
    waitForLines(2, "trang Trang: Dữ liệu nhận được không phải là ảnh.");
    add();
    waitForLines(3, "khi thêm trang Trang Chín: Lỗi Graph API (500)");
    EXPECT_THAT(stored(), ElementsAre(c, model->pages->back()));
}

TEST_F(PagesViewModelTest, AddsThePageThatTheTokenDescribesAndRefusesItTheSecondTime) {
    show({a, b});
    std::vector<bool> verifying;
    const auto watching =
        model->isVerifying.observe([&] { verifying.push_back(*model->isVerifying); });
    add(" exactly this ");
    EXPECT_THAT(verifying, ElementsAre(true, false));
    EXPECT_EQ(*model->verifyError, std::nullopt);
    const PageConfig added = model->pages->back();
    EXPECT_THAT(*model->selectedPage, Optional(added));
    ASSERT_THAT(stored(), ElementsAre(b, a, added));
    const auto written = stored().back();
    EXPECT_EQ(written.accountId, account.id);
    EXPECT_EQ(written.pageToken, SecretText(" exactly this "));
    EXPECT_EQ(written.pageId, PageId{"9"});
    EXPECT_EQ(written.pageName, "Trang Chín");
    EXPECT_EQ(written.pageAvatarUrl, "https://p/9");
    EXPECT_TRUE(written.isConnected);
    EXPECT_EQ(written.createdAt, world.clock.now());
    EXPECT_TRUE(runUntil([&] { return cached("9").has_value(); }));

    add();
    EXPECT_EQ(*model->verifyError, "Page \"Trang Chín\" đã tồn tại trong tài khoản này.");
    EXPECT_THAT(stored(), ElementsAre(b, a, added));
    EXPECT_THAT(world.loggedLines(), testing::Not(HasSubstr("PagesVM")));
}

TEST_F(PagesViewModelTest, ReportsAndLogsWhyATokenIsRefused) {
    world.answerMe({400, R"({"error":{"message":"Bad page-token","code":190}})", {}});
    add();
    EXPECT_EQ(*model->verifyError, "Bad …");
    EXPECT_THAT(world.loggedLines(), HasSubstr("[ERROR] PagesVM: Lỗi khi thêm trang: Bad …\n"));
    EXPECT_THAT(stored(), IsEmpty());

    world.answerMe({200, R"({"id":"9","name":"Trang Chín"})", {}});
    add();
    EXPECT_EQ(*model->verifyError, std::nullopt);
    EXPECT_EQ(stored().at(0).pageAvatarUrl, "") << "A Page may have no picture.";
}

TEST_F(PagesViewModelTest, StoresALatePageUnderItsAccountAndShowsItUnderNoOther) {
    const auto same = makePage(other, "9");
    show({same, a});
    const auto addDuring = [&](std::function<void()> work) {
        world.server.hold("/v25.0/me");
        auto adding = model->addPage(SecretText("page-token"), account);
        work();
        world.server.release();
        return await(std::move(adding));
    };
    const auto showOther = [&] { model->loadPages(other.id); };
    EXPECT_TRUE(addDuring(showOther)) << "only the other account had this Page";
    EXPECT_THAT(*model->pages, ElementsAre(same));
    EXPECT_EQ(*model->selectedPage, std::nullopt);
    ASSERT_THAT(stored(), SizeIs(3));
    model->loadPages(account.id);
    EXPECT_THAT(*model->pages, ElementsAre(a, Field(&PageConfig::pageId, PageId{"9"})));
    EXPECT_FALSE(addDuring(showOther)) << "now this account has it";

    world.store.savePages({same});
    EXPECT_FALSE(addDuring([&] { world.store.deleteAccount(account.id); }));
    EXPECT_THAT(stored(), ElementsAre(same));
    EXPECT_THAT(
        world.loggedLines(),
        HasSubstr("PagesVM: Lỗi khi thêm trang: Tài khoản đã bị xóa nên Page không được thêm.\n"));
}

TEST_F(PagesViewModelTest, KeepsThePagesThatCouldNotBeReadBefore) {
    world.store.savePages({a, b});
    const auto file = world.records / "pages.json";
    std::filesystem::rename(file, world.folder / "elsewhere");
    std::filesystem::create_directory(file);
    auto store = world.newStore();
    model.emplace(store, world.logger, world.clock, world.makeClient);
    model->loadPages(account.id);
    EXPECT_THAT(*model->pages, IsEmpty());
    std::filesystem::remove(file);
    std::filesystem::rename(world.folder / "elsewhere", file);
    add();
    const PageConfig added = **model->selectedPage;
    EXPECT_THAT(*model->pages, ElementsAre(a, added));
    EXPECT_THAT(stored(), ElementsAre(b, a, added));
}

TEST_F(PagesViewModelTest, MovesALostSelectionToTheFirstPageLeft) {
    show({a, b, c});
    model->selectPage(c);
    model->deletePage(model->pages->back());
    EXPECT_THAT(*model->selectedPage, Optional(a));
    model->deletePage(a);
    EXPECT_EQ(*model->selectedPage, std::nullopt);
    EXPECT_THAT(stored(), ElementsAre(b));
}

TEST_F(PagesViewModelTest, LoadsFiveHundredPicturesWithoutAStallAndMayBeDroppedMeanwhile) {
    std::vector<PageConfig> many;
    for (int i = 0; i < 500; ++i)
        many.push_back(makePage(account, std::to_string(1000 + i)));
    show(many);
    std::size_t arrived = 0;
    const ScopedConnection watching(model->changed.connect([&] { ++arrived; }));
    EXPECT_LT(longestTurnUntil([&] { return arrived == 500; }), 500ms);
    EXPECT_EQ(world.server.connectionCount(), 500u);

    std::filesystem::remove_all(world.records / "avatars");
    model->loadPages(account.id);
    model->addPage(SecretText("page-token"), account).detach();
    model.reset();
    EXPECT_TRUE(runUntil([&] {
        return world.server.connectionCount() == 1001 && world.server.openConnections() == 0;
    }));
    EXPECT_THAT(stored(), SizeIs(500));
}
