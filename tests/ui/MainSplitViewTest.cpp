#include "Views/MainSplitView.h"

#include "ui/Inbox/WebProcesses.h"

#include "Services/SupportClient.h"
#include "Views/AccountButton.h"
#include "Views/InboxCommands.h"
#include "Views/PageButton.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>

using namespace tessaro;

namespace {

class MainSplitViewTest : public testing::Test {
protected:
    MainSplitViewTest() {
        screen_.store.saveAccounts({first_, second_});
        screen_.store.savePages(
            {test::makePage(first_, "1", "Mai"), test::makePage(second_, "2", "Lan")});
        view_.emplace(screen_.context, screen_.logger, support_);
        screen_.show(*view_);
    }
    ~MainSplitViewTest() override { screen_.window.unset_child(); }

    bool hasPlaceholder() { return test::find(*view_, "Chọn một Page để mở hộp thư") != nullptr; }
    InboxContainerView* inbox() {
        const auto found = test::descendants<InboxContainerView>(*view_);
        return found.empty() ? nullptr : found.front();
    }

    test::TestScreen screen_;
    SupportClient support_{
        screen_.settings, "http://127.0.0.1:9", screen_.device, screen_.logger, {}};
    Account first_ = test::makeAccount("Một");
    Account second_ = test::makeAccount("Hai");
    std::optional<MainSplitView> view_;
};

} // namespace

TEST_F(MainSplitViewTest, StartsWithNothingSelectedAndTheKeyboardAtTheAccounts) {
    auto* placeholder = test::find(*view_, "Chọn một Page để mở hộp thư");
    ASSERT_TRUE(placeholder);
    double x = 0, y = 0;
    placeholder->translate_coordinates(*view_, 0, 0, x, y);
    EXPECT_NEAR(y, view_->get_height() / 2.0, 40) << "In the middle of the inbox column.";
    EXPECT_FALSE(test::find(*view_, "Thêm Page"));
    EXPECT_TRUE(test::find<AccountButton>(*view_, "Một")->has_focus());
    EXPECT_EQ(test::descendants<AccountSidebar>(*view_).front()->get_width(), 56);
    EXPECT_EQ(test::descendants<PageListView>(*view_).front()->get_width(), 56);
    int minimum = 0, natural = 0, ignored = 0;
    view_->measure(Gtk::Orientation::HORIZONTAL, -1, minimum, natural, ignored, ignored);
    EXPECT_EQ(minimum, 900);
    view_->measure(Gtk::Orientation::VERTICAL, -1, minimum, natural, ignored, ignored);
    EXPECT_EQ(minimum, 560);
}

TEST_F(MainSplitViewTest, TheColumnsStayNarrow) {
    test::press(*view_, "Một");
    screen_.window.set_default_size(1400, 800);
    screen_.settle();
    EXPECT_EQ(test::descendants<AccountSidebar>(*view_).at(0)->get_width(), 56);
    EXPECT_EQ(test::descendants<PageListView>(*view_).at(0)->get_width(), 56);
    // The first row lies 8 points below the top, the next one 6 below the first one.
    const auto rows = test::widgetsOf<AccountButton>(*view_);
    ASSERT_EQ(rows.size(), 2u);
    double x = 0, y = 0;
    ASSERT_TRUE(rows[0]->translate_coordinates(*view_, 0, 0, x, y));
    EXPECT_EQ(std::pair(x, y), std::pair(9.0, 8.0));
    ASSERT_TRUE(rows[1]->translate_coordinates(*view_, 0, 0, x, y));
    EXPECT_EQ(std::pair(x, y), std::pair(9.0, 8.0 + 38 + 6));
}

TEST_F(MainSplitViewTest, ThePagesFollowTheAccount) {
    test::press(*view_, "Một");
    screen_.settle();
    EXPECT_TRUE(test::find<PageButton>(*view_, "Mai"));
    test::press(*view_, "Hai");
    screen_.settle();
    EXPECT_FALSE(test::find<PageButton>(*view_, "Mai"));
    EXPECT_TRUE(test::find<PageButton>(*view_, "Lan"));
    view_->accountsVM().deleteAccount(first_);
    view_->accountsVM().deleteAccount(second_);
    screen_.settle();
    EXPECT_TRUE(test::widgetsOf<PageButton>(*view_).empty());
    EXPECT_FALSE(test::find(*view_, "Thêm Page"));
}

TEST_F(MainSplitViewTest, AnEditedAccountLoadsNoPagesAgain) {
    test::press(*view_, "Một");
    const auto asked = screen_.graph.asked.size();
    first_.name = "Mốt";
    view_->accountsVM().updateAccount(first_);
    EXPECT_EQ(screen_.graph.asked.size(), asked);
}

TEST_F(MainSplitViewTest, TheInboxStandsInThePlaceholdersPlaceWhileAPageIsSelected) {
    test::press(*view_, "Một");
    screen_.settle();
    test::press(*view_, "Mai");
    screen_.settle();
    InboxContainerView* const opened = inbox();
    ASSERT_TRUE(opened);
    EXPECT_EQ(opened->pageConfig().pageId.text, "1");
    EXPECT_FALSE(hasPlaceholder());

    const auto other = test::makePage(first_, "3");
    view_->pagesVM().selectPage(other);
    EXPECT_EQ(inbox(), opened) << "Another Page uses the same browser.";
    EXPECT_EQ(opened->pageConfig().id, other.id);

    test::press(*view_, "Hai");
    screen_.settle();
    EXPECT_FALSE(inbox());
    EXPECT_TRUE(hasPlaceholder());
}

TEST_F(MainSplitViewTest, TheBrowsersProcessIsReadyWhileAnAccountsPagesAreShown) {
    const auto letTimePass = [this] {
        screen_.clock.advance(std::chrono::seconds(1));
        screen_.settle();
    };
    ASSERT_TRUE(test::runUntil([] { return test::webProcesses().empty(); })) << "Of other tests.";
    letTimePass();
    EXPECT_TRUE(test::webProcesses().empty()) << "Nobody has chosen an account.";
    test::press(*view_, "Một");
    screen_.settle();
    EXPECT_TRUE(test::webProcesses().empty()) << "The Pages come first.";
    letTimePass();
    EXPECT_TRUE(test::runUntil([] { return test::webProcesses().size() == 1; }));
    screen_.settle(); // The engine itself hears of its process in its next turn only.
    view_->pagesVM().deletePage(view_->pagesVM().pages->front());
    EXPECT_TRUE(test::runUntil([] { return test::webProcesses().empty(); }))
        << "There is no Page left to open.";
}

TEST_F(MainSplitViewTest, AnAccountsPagesAreShownFromTheFirstOn) {
    std::vector<PageConfig> pages;
    for (int i = 0; i < 100; ++i)
        pages.push_back(test::makePage(i < 50 ? first_ : second_, std::to_string(i)));
    pages.front().pageName = "Đầu của Một";
    pages[50].pageName = "Đầu của Hai";
    screen_.store.savePages(pages);
    for (const auto& [account, first] :
         {std::pair("Một", "Đầu của Một"), std::pair("Hai", "Đầu của Hai")}) {
        test::press(*view_, account);
        screen_.settle();
        auto* button = test::find<PageButton>(*view_, first);
        ASSERT_TRUE(button) << account;
        double x = 0, y = 0;
        ASSERT_TRUE(button->translate_coordinates(*view_, 0, 0, x, y));
        EXPECT_EQ(y, 8) << account;
        view_->pagesVM().selectPage(view_->pagesVM().pages->back());
        screen_.settle();
    }
}

TEST_F(MainSplitViewTest, ARequestedInboxIsSelectedWhereverItsPageIs) {
    const auto request = [this](const std::string& pageId) {
        screen_.notifications.post(inboxRequested, {{"pageId", pageId}, {"activationToken", ""}});
        screen_.settle();
    };
    request("2");
    EXPECT_EQ((*view_->accountsVM().selectedAccount)->id, second_.id);
    ASSERT_TRUE(inbox());
    EXPECT_EQ(inbox()->pageConfig().pageName, "Lan");
    InboxContainerView* const opened = inbox();
    request("2");
    request("of a Page that is gone");
    EXPECT_EQ(inbox(), opened);
    EXPECT_EQ(inbox()->pageConfig().pageName, "Lan");
    request("1");
    EXPECT_EQ((*view_->accountsVM().selectedAccount)->id, first_.id);
    EXPECT_EQ(inbox()->pageConfig().pageName, "Mai");
}
