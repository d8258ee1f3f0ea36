#include "Views/Shell/MainSplitView.h"

#include "Services/SupportClient.h"
#include "Views/Columns/AccountButton.h"
#include "Views/Columns/PageButton.h"
#include "Views/Sheets/AccountDetailSheet.h"
#include "Views/Sheets/AddPageSheet.h"
#include "support/Gtk/TestScreen.h"

#include <gtest/gtest.h>

using namespace tessaro;
using namespace tessaro::test;

namespace {

class MainSplitViewTest : public testing::Test {
protected:
    MainSplitViewTest() {
        screen_.store.saveAccounts({first_, second_});
        screen_.store.savePages({makePage(first_, "1", "Mai"), makePage(second_, "2", "Lan")});
        view_.emplace(screen_.context, support_);
        screen_.show(*view_);
    }
    ~MainSplitViewTest() override { screen_.window.unset_child(); }

    void choose(const std::string& name) {
        press(*view_, name);
        screen_.settle();
    }
    /// The name of the Page whose inbox is shown; empty while the placeholder stands there.
    std::string shownInbox() {
        const auto found = descendants<InboxContainerView>(*view_);
        EXPECT_NE(found.empty(), find(*view_, "Chọn một Page để mở hộp thư") == nullptr);
        return found.empty() ? "" : found.front()->pageConfig().pageName;
    }

    TestScreen screen_;
    SupportClient support_{
        screen_.settings, "http://127.0.0.1:9", screen_.device, screen_.logger, {}};
    Account first_ = makeAccount("Một");
    Account second_ = makeAccount("Hai");
    std::optional<MainSplitView> view_;
};

} // namespace

TEST_F(MainSplitViewTest, ThePagesFollowTheAccountAndTheInboxThePage) {
    EXPECT_TRUE(the<AccountButton>(*view_, "Một").has_focus()) << "The focus starts there.";
    EXPECT_EQ(shownInbox(), "");
    EXPECT_TRUE(runUntil([this] {
        return screen_.loggedLines().ends_with("FakeEngine 1.0, sandboxed, decodes Opus\n");
    })) << "The support staff reads there what the program runs on.";
    choose("Một");
    choose("Mai");
    EXPECT_EQ(shownInbox(), "Mai");
    auto* const browser = descendants<InboxContainerView>(*view_).front();
    view_->pagesVM().selectPage(makePage(first_, "3", "Hoa"));
    EXPECT_EQ(shownInbox(), "Hoa");
    EXPECT_EQ(descendants<InboxContainerView>(*view_).front(), browser);

    choose("Hai");
    EXPECT_EQ(shownInbox(), "");
    EXPECT_FALSE(find<PageButton>(*view_, "Mai"));
    EXPECT_TRUE(find<PageButton>(*view_, "Lan"));
    view_->accountsVM().deleteAccount(first_);
    view_->accountsVM().deleteAccount(second_);
    screen_.settle();
    EXPECT_TRUE(widgetsOf<PageButton>(*view_).empty());
    EXPECT_FALSE(find(*view_, "Thêm Page"));
}

TEST_F(MainSplitViewTest, TheEmptyWindowOffersTheFirstStepAndThenTheSecond) {
    EXPECT_FALSE(find(*view_, "Thêm tài khoản đầu tiên"));
    EXPECT_FALSE(find(*view_, "Thêm Page đầu tiên"));
    view_->accountsVM().selectAccount(first_);
    view_->pagesVM().deletePage(view_->pagesVM().pages->front());
    screen_.settle();
    press(*view_, "Thêm Page đầu tiên");
    EXPECT_TRUE(shownWindow<AddPageSheet>());

    view_->accountsVM().deleteAccount(first_);
    view_->accountsVM().deleteAccount(second_);
    screen_.settle();
    EXPECT_FALSE(find(*view_, "Thêm Page đầu tiên"));
    press(*view_, "Thêm tài khoản đầu tiên");
    EXPECT_TRUE(shownWindow<AccountDetailSheet>());
}

TEST_F(MainSplitViewTest, ABrowserIsReadyBeforeAPageIsOpened) {
    const auto letTimePass = [this] {
        screen_.clock.advance(std::chrono::seconds(1));
        screen_.settle();
    };
    const auto& browsers = screen_.fakeEngine.views;
    letTimePass();
    EXPECT_TRUE(browsers.empty()) << "Nobody has chosen an account.";
    choose("Một");
    EXPECT_TRUE(browsers.empty()) << "The Pages come first.";
    letTimePass();
    ASSERT_EQ(browsers.size(), 1u);
    EXPECT_EQ(browsers[0].lock()->scripts.size(), 1u) << "The first script starts its web process.";
    view_->pagesVM().deletePage(view_->pagesVM().pages->front());
    EXPECT_TRUE(browsers[0].expired()) << "There is no Page left to open.";

    choose("Hai");
    letTimePass();
    choose("Lan");
    ASSERT_EQ(browsers.size(), 2u);
    EXPECT_EQ(browsers[1].lock()->loads.size(), 1u);
}

TEST_F(MainSplitViewTest, AnAccountsPagesAreShownFromTheFirstOn) {
    std::vector<PageConfig> pages;
    for (const auto& account : {first_, second_})
        for (int i = 0; i < 50; ++i)
            pages.push_back(
                makePage(account, account.name + std::to_string(i), i ? "Trang" : account.name));
    screen_.store.savePages(pages);
    for (const auto& account : {first_, second_}) {
        choose(account.name);
        double x = 0, y = 0;
        the<PageButton>(*view_, account.name).translate_coordinates(*view_, 0, 0, x, y);
        EXPECT_EQ(y, 8) << account.name;
        view_->pagesVM().selectPage(view_->pagesVM().pages->back());
        screen_.settle();
    }
}

TEST_F(MainSplitViewTest, ARequestedInboxIsSelectedWhereverItsPageIs) {
    const std::tuple<const char*, AccountId, const char*> requests[] = {
        {"2", second_.id, "Lan"},
        {"2", second_.id, "Lan"},
        {"of a Page that is gone", second_.id, "Lan"},
        {"1", first_.id, "Mai"},
    };
    for (const auto& [pageId, account, shown] : requests) {
        screen_.inbox.requested.emit(pageId, "");
        screen_.settle();
        EXPECT_EQ((*view_->accountsVM().selectedAccount)->id, account) << pageId;
        EXPECT_EQ(shownInbox(), shown) << pageId;
    }
}
