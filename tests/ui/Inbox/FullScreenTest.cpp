#include "ui/Inbox/InboxScreen.h"
#include "ui/Inbox/WebProcesses.h"

#include "Views/Columns/AccountSidebar.h"
#include "Views/Columns/PageListView.h"
#include "Views/Shell/FooterBar.h"
#include "support/Gtk/Keyboard.h"

#include <gtkmm/separator.h>

#include <csignal>

namespace tessaro::test {
namespace {

/// An inbox whose header goes to full screen when it is clicked, as a video does.
class FullScreen : public InboxScreen {
protected:
    void SetUp() override {
        InboxScreen::SetUp();
        Keyboard::press(GDK_KEY_f, GDK_KEY_Control_L);
        ASSERT_TRUE(runUntil([&] { return bar().get_mapped(); }));
        isNarrow = ask(webView(), "innerWidth");
    }
    void enter() {
        ask(webView(), "(document.querySelector('.customer').onclick = event => "
                       "document.querySelector('.thread').requestFullscreen())");
        clickOn(webView(), ".customer");
        ASSERT_TRUE(runUntil([&] { return window.is_fullscreen() && shownAround() == 0; }));
        EXPECT_TRUE(runUntil([&] {
            const auto size =
                std::to_string(window.get_width()) + "x" + std::to_string(window.get_height());
            return window.get_width() > 1300 &&
                   ask(webView(), "innerWidth + 'x' + innerHeight") == size;
        }));
        EXPECT_FALSE(only<MouseBlockerView>().get_mapped());
    }
    /// How many of the widgets around the web page are on screen.
    std::size_t shownAround() {
        return widgetsOf<AccountSidebar>(*content).size() +
               widgetsOf<PageListView>(*content).size() + widgetsOf<FooterBar>(*content).size() +
               widgetsOf<Gtk::Separator>(*content).size() + widgetsOf<FindBar>(*content).size() +
               widgetsOf<Gtk::HeaderBar>(window).size();
    }
    bool waitForWindow(std::size_t around) {
        return runUntil([&] { return !window.is_fullscreen() && shownAround() == around; }) &&
               only<MouseBlockerView>().get_visible();
    }

    std::string isNarrow; ///< The web page's width in the window.
};

TEST_F(FullScreen, IsGivenToThePageAloneAndTakenBackInEveryWay) {
    const auto around = shownAround();
    enter();
    Keyboard::press(GDK_KEY_Escape);
    EXPECT_TRUE(waitForWindow(around));
    EXPECT_TRUE(waitUntil("innerWidth === " + isNarrow));

    enter();
    ask(webView(), "document.exitFullscreen()");
    EXPECT_TRUE(waitForWindow(around));

    enter();
    Keyboard::press(GDK_KEY_2, GDK_KEY_Control_L);
    EXPECT_TRUE(waitForInbox(DemoWorld::coffee));
    EXPECT_TRUE(waitForWindow(around - 1)) << "The find bar goes with its web page.";

    enter();
    for (const pid_t process : webProcesses())
        kill(process, SIGKILL);
    ASSERT_TRUE(runUntil([&] { return bool(find(*content, "Tải lại trang")); }));
    press(*content, "Tải lại trang");
    EXPECT_TRUE(waitForInbox(DemoWorld::coffee));
    EXPECT_TRUE(waitForWindow(around - 1));
}

} // namespace
} // namespace tessaro::test
