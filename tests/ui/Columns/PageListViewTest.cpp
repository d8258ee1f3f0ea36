#include "Views/Columns/PageListView.h"

#include "Views/Columns/PageButton.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/Pictures.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/WidgetPicture.h"
#include "support/LoopbackServer.h"

#include <gtest/gtest.h>

using namespace tessaro;
using namespace tessaro::test;

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
    PageButton& button(const std::string& name) { return the<PageButton>(view_, name); }

    TestScreen screen_;
    Account account_ = makeAccount();
    PagesViewModel pagesVM_{screen_.store, screen_.logger, screen_.clock, screen_.makeGraphClient};
    PageListView view_{screen_.context, pagesVM_};
};

} // namespace

TEST_F(PageListViewTest, TellsNamesAndConnections) {
    PageConfig lost = makePage(account_, "2", "Lan");
    lost.isConnected = false;
    showPages({makePage(account_, "1", ""), lost});
    const auto dot = [&](const std::string& name) {
        return WidgetPicture(button(name)).at(33, 33);
    };
    EXPECT_GT(dot("Page").get_green(), 0.7) << "A Page without a name has one here.";
    EXPECT_NEAR(dot("Lan").get_green(), dot("Lan").get_red(), 0.01) << "A grey one.";
}

TEST_F(PageListViewTest, TheSelectedPageAloneWearsTheOutlineAndTheCount) {
    showPages({makePage(account_, "1", "Mai"), makePage(account_, "2", "Lan")});
    const auto isOutlined = [&](const std::string& name) {
        double x = 0, y = 0;
        button(name).translate_coordinates(view_, -2, 19, x, y);
        screen_.settle();
        return nearlyEqual(WidgetPicture(view_).at(x, y), screen_.theme.themePrimary());
    };
    screen_.inbox.unread.set({3});
    EXPECT_FALSE(find(view_, "3"));
    click(button("Lan"));
    EXPECT_EQ((*pagesVM_.selectedPage)->pageName, "Lan");
    EXPECT_TRUE(find<Gtk::Label>(button("Lan, 3 chưa đọc"), "3"));
    EXPECT_TRUE(isOutlined("Lan, 3 chưa đọc"));
    EXPECT_FALSE(isOutlined("Mai"));
    click(button("Mai"));
    screen_.inbox.unread.set({1234});
    EXPECT_TRUE(find<Gtk::Label>(button("Mai, 1234 chưa đọc"), "99+"));
    EXPECT_TRUE(button("Lan").get_mapped());
    screen_.inbox.unread.set({});
    EXPECT_TRUE(widgetsOf<Gtk::Label>(button("Mai")).empty());
}

TEST_F(PageListViewTest, PicturesComeByTheAccountsProxyEachOnce) {
    LoopbackServer proxy;
    proxy.answer("*", pngPicture(80, 80, 0x0000FFFF));
    screen_.store.saveAccounts({proxiedBy(proxy.port(), account_)});
    showPages({makePage(account_, "1", "Mai"), makePage(account_, "2", "Lan")});
    for (const char* name : {"Mai", "Lan"})
        EXPECT_TRUE(runUntil([&] {
            return nearlyEqual(WidgetPicture(button(name)).at(19, 6), {0, 0, 1, 1});
        })) << name;
    EXPECT_EQ(proxy.requests().size(), 2u);
}

TEST_F(PageListViewTest, TheMenuDeletesAPage) {
    showPages({makePage(account_, "1", "Mai"), makePage(account_, "2", "Lan")});
    button("Lan").grab_focus();
    Keyboard::press(GDK_KEY_Menu);
    ASSERT_TRUE(runUntil([this] { return find(view_, "Xóa Page"); }));
    Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(runUntil([this] { return pagesVM_.pages->size() == 1; }));
    EXPECT_TRUE(find<PageButton>(view_, "Mai"));
}
