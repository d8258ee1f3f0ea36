#include "Views/PageListView.h"

#include "Views/AddPageSheet.h"
#include "Views/InboxCommands.h"
#include "Views/PageButton.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/Pictures.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/WidgetPicture.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"

#include <gmock/gmock.h>

using namespace tessaro;

namespace {

class PageListViewTest : public testing::Test {
protected:
    PageListViewTest() { screen_.show(view_); }
    ~PageListViewTest() override { screen_.window.unset_child(); }

    void showPages(std::vector<PageConfig> pages) {
        screen_.store.savePages(std::move(pages));
        view_.setAccount(account_);
        pagesVM_.loadPages(account_.id);
        screen_.settle();
    }
    PageButton& button(const std::string& name) {
        auto* found = test::find<PageButton>(view_, name);
        if (!found)
            throw std::out_of_range(name);
        return *found;
    }
    bool hasAddButton() { return test::find<AddButton>(view_, "Thêm Page") != nullptr; }
    bool hasArrow() { return !test::widgetsOf<Symbol>(view_).empty() && !hasAddButton(); }

    test::TestScreen screen_;
    Account account_ = test::makeAccount();
    PagesViewModel pagesVM_{screen_.store, screen_.logger, screen_.clock, screen_.graph.factory()};
    PageListView view_{screen_.context, pagesVM_};
};

} // namespace

TEST_F(PageListViewTest, PointsToTheAccountsWhileNoneIsSelected) {
    EXPECT_TRUE(hasArrow());
    view_.setAccount(account_);
    screen_.settle();
    EXPECT_TRUE(hasAddButton());
    EXPECT_FALSE(hasArrow());
    view_.setAccount(std::nullopt);
    screen_.settle();
    EXPECT_TRUE(hasArrow());
}

TEST_F(PageListViewTest, TellsNamesAndConnections) {
    PageConfig unnamed = test::makePage(account_, "1", "");
    PageConfig lost = test::makePage(account_, "2", "Lan");
    lost.isConnected = false;
    showPages({unnamed, lost});
    EXPECT_EQ(button("Page").tooltip(), "Page");
    const auto dot = [](PageButton& shown) {
        return test::WidgetPicture(shown).at(19 + 14, 19 + 14);
    };
    EXPECT_GT(dot(button("Page")).green, 0.7);
    EXPECT_NEAR(dot(button("Lan")).green, dot(button("Lan")).red, 0.01) << "A grey one.";
}

TEST_F(PageListViewTest, OutlinesTheSelectedPageAlone) {
    showPages({test::makePage(account_, "1", "Mai"), test::makePage(account_, "2", "Lan")});
    test::click(button("Lan"));
    ASSERT_TRUE(pagesVM_.selectedPage->has_value());
    EXPECT_EQ((*pagesVM_.selectedPage)->pageName, "Lan");
    EXPECT_TRUE(button("Lan").badge().isSelected());
    EXPECT_FALSE(button("Mai").badge().isSelected());
}

TEST_F(PageListViewTest, TheSelectedPageAloneWearsTheCount) {
    showPages({test::makePage(account_, "1", "Mai"), test::makePage(account_, "2", "Lan")});
    const auto post = [this](const std::string& count) {
        screen_.notifications.post(unreadCountChanged, {{"count", count}});
    };
    post("3");
    EXPECT_FALSE(test::find(view_, "3"));
    test::click(button("Lan"));
    EXPECT_TRUE(test::find<Gtk::Label>(button("Lan, 3 chưa đọc"), "3"));
    EXPECT_EQ(button("Lan, 3 chưa đọc").tooltip(), "Lan");
    test::click(button("Mai"));
    post("20+");
    EXPECT_TRUE(test::find<Gtk::Label>(button("Mai, 20+ chưa đọc"), "20+"));
    EXPECT_TRUE(button("Lan").get_mapped());
    post("1234");
    EXPECT_TRUE(test::find<Gtk::Label>(button("Mai, 1234 chưa đọc"), "99+"));
    post("");
    EXPECT_TRUE(test::widgetsOf<Gtk::Label>(button("Mai")).empty());
}

TEST_F(PageListViewTest, DeletingTheSelectedPageByItsMenuSelectsTheFirstOneLeft) {
    showPages({test::makePage(account_, "1", "Mai"), test::makePage(account_, "2", "Lan")});
    test::click(button("Lan"));
    button("Lan").grab_focus();
    test::Keyboard::press(GDK_KEY_Menu);
    ASSERT_TRUE(test::runUntil([this] { return test::find(view_, "Xóa Page"); }));
    test::Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(test::runUntil([this] { return pagesVM_.pages->size() == 1; }));
    EXPECT_TRUE(button("Mai").badge().isSelected());
}

TEST_F(PageListViewTest, OpensTheSheetForItsAccount) {
    showPages({});
    test::press(view_, "Thêm Page");
    const auto sheet = []() -> AddPageSheet* {
        for (Gtk::Window* window : Gtk::Window::list_toplevels())
            if (auto* found = dynamic_cast<AddPageSheet*>(window))
                return found;
        return nullptr;
    };
    ASSERT_TRUE(sheet());
    EXPECT_EQ(sheet()->flow().account().id, account_.id);
    EXPECT_TRUE(sheet()->get_modal());
    EXPECT_EQ(sheet()->get_transient_for(), &screen_.window);
    pagesVM_.showAddSheet.set(false);
    EXPECT_TRUE(test::runUntil([&] { return !sheet(); }));
}

TEST_F(PageListViewTest, SwitchingAccountsWhilePicturesLoadMixesNothingUp) {
    const Account other = test::makeAccount();
    std::vector<PageConfig> pages;
    for (int i = 0; i < 60; ++i) {
        const std::string id = std::to_string(i);
        pages.push_back(test::makePage(i % 2 ? account_ : other, id, "Trang " + id));
        screen_.store.saveAvatarData(id, test::pngPicture(64, 64, i % 2 ? 0xFF0000FF : 0x0000FFFF));
    }
    showPages(pages);
    for (int i = 0; i < 20; ++i) {
        pagesVM_.loadPages(other.id);
        if (i % 3 == 0)
            screen_.settle();
        pagesVM_.loadPages(account_.id);
    }
    const auto isRed = [](PageButton* shown) {
        return test::nearlyEqual(test::WidgetPicture(*shown).at(12, 12), {1, 0, 0, 1});
    };
    EXPECT_TRUE(test::runUntil([&] {
        const auto shown = test::widgetsOf<PageButton>(view_);
        return !shown.empty() && std::ranges::all_of(shown, isRed);
    }));
}
