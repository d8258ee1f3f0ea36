#include "ui/Inbox/InboxWorld.h"

#include "Services/SupportClient.h"
#include "Views/FindBar.h"
#include "Views/MainSplitView.h"
#include "Views/MainWindow.h"
#include "support/FakeGraph.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/TestApplication.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/Widgets.h"

#include <gtest/gtest.h>

namespace tessaro::test {
namespace {

/// The main window with three Pages, the first of which shows its inbox and has the keyboard.
class InboxKeys : public testing::Test {
protected:
    InboxKeys() {
        world.browserContext.makeGraphClient = graph.factory();
        world.store.saveAccounts({account});
        world.store.savePages(
            {makePage(account, DemoWorld::flowers), makePage(account, DemoWorld::coffee),
             makePage(account, DemoWorld::books)});
        content.emplace(world.browserContext, world.logger, support);
        window.set_child(*content);
        window.set_default_size(1000, 700);
        window.present();
        content->accountsVM().selectAccount(account);
        content->pagesVM().selectPage(content->pagesVM().pages->front());
    }
    ~InboxKeys() override { window.unset_child(); }

    void SetUp() override {
        ASSERT_TRUE(runUntil([&] { return window.is_active(); }));
        ASSERT_TRUE(waitForInbox(DemoWorld::flowers));
        webView().widget().grab_focus();
    }

    template <typename Class>
    Class& only() {
        return *descendants<Class>(*content).at(0);
    }
    WebView& webView() { return *only<ClippedWebViewContainer>().webView(); }
    FindBar& bar() { return only<FindBar>(); }
    Gtk::SearchEntry& entry() { return only<Gtk::SearchEntry>(); }
    std::string askPage(const std::string& expression) { return ask(webView(), expression); }
    bool waitUntil(const std::string& expression) {
        return runUntil([&] { return askPage(expression) == "true"; });
    }
    bool waitForInbox(const std::string& pageId) {
        return waitUntil(
                   "!!document.querySelector('.conversations button') && "
                   "location.search === '?asset_id=" +
                   pageId + "'") &&
               runUntil([&] { return !find(*content, "Đang tải hộp thư..."); });
    }
    /// Whether the place that was found last is in an element of that class.
    bool waitForPlaceIn(const std::string& name) {
        return waitUntil("getSelection().anchorNode?.parentNode.className === '" + name + "'");
    }
    bool waitForText(const std::string& text) {
        return runUntil([&] { return find<Gtk::Label>(bar(), text) != nullptr; });
    }
    static void type(const std::string& letters) {
        for (const char letter : letters)
            Keyboard::press(gdk_unicode_to_keyval(static_cast<guint32>(letter)));
    }
    bool pageHasKeyboard() { return window.get_focus() == &webView().widget(); }

    DemoWorld world;
    FakeGraph graph;
    SupportClient support{world.settings, "http://127.0.0.1:9", world.device, world.logger, {}};
    const Account account = makeAccount();
    MainWindow window{application(), world.notifications};
    std::optional<MainSplitView> content;
};

TEST_F(InboxKeys, FindInThePage) {
    const int pageHeight = webView().widget().get_height();
    Keyboard::press(GDK_KEY_f, GDK_KEY_Control_L);
    ASSERT_TRUE(runUntil([&] { return bar().get_mapped(); }));
    type("thu"); // As a person writes it in a hurry.
    EXPECT_TRUE(waitForText("4 kết quả"));
    EXPECT_TRUE(waitForPlaceIn("name"));
    TestScreen::settle(window);
    EXPECT_EQ(
        webView().widget().get_height() + bar().get_allocated_height(),
        pageHeight); // Nothing is covered.

    Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(waitForPlaceIn("last"));
    press(bar(), "Kết quả trước");
    EXPECT_TRUE(waitForPlaceIn("name"));
    Keyboard::press(GDK_KEY_Return, GDK_KEY_Shift_L);
    EXPECT_TRUE(waitForPlaceIn("customer"));
    press(bar(), "Kết quả tiếp theo");
    EXPECT_TRUE(waitForPlaceIn("name"));
    EXPECT_TRUE(waitForText("4 kết quả"));
    type("x");
    EXPECT_TRUE(waitForText("Không tìm thấy"));

    Keyboard::press(GDK_KEY_Escape);
    EXPECT_FALSE(bar().get_visible());
    EXPECT_TRUE(pageHasKeyboard());
    Keyboard::press(GDK_KEY_f, GDK_KEY_Control_L);
    EXPECT_TRUE(waitForText("Không tìm thấy"));
    type("kraft"); // In place of the former text.
    EXPECT_TRUE(waitForText("1 kết quả"));

    Keyboard::press(GDK_KEY_2, GDK_KEY_Control_L); // Goes with its page.
    EXPECT_TRUE(waitForInbox(DemoWorld::coffee));
    EXPECT_FALSE(bar().get_visible());
    EXPECT_TRUE(pageHasKeyboard());
}

TEST_F(InboxKeys, ZoomThePageAndGoBackToItsNaturalSize) {
    const std::string width = askPage("innerWidth");
    Keyboard::press(GDK_KEY_equal, GDK_KEY_Control_L);
    EXPECT_TRUE(waitUntil("innerWidth < " + width));
    Keyboard::press(GDK_KEY_0, GDK_KEY_Control_L);
    EXPECT_TRUE(waitUntil("innerWidth === " + width));
    Keyboard::press(GDK_KEY_minus, GDK_KEY_Control_L);
    EXPECT_TRUE(waitUntil("innerWidth > " + width));
    Keyboard::press(GDK_KEY_0, GDK_KEY_Control_L);
    EXPECT_TRUE(waitUntil("innerWidth === " + width));
}

TEST_F(InboxKeys, ChooseAPageByItsPlaceInTheList) {
    int choices = 0;
    const auto counted = content->pagesVM().selectedPage.observe([&] { ++choices; });
    // What the keys of 1 to 4 and 9 type; the display begins and ends with the latter layout.
    const std::pair<const char*, std::array<guint, 5>> layouts[]{
        {"vn",
         {GDK_KEY_abreve, GDK_KEY_acircumflex, GDK_KEY_ecircumflex, GDK_KEY_ocircumflex,
          gdk_unicode_to_keyval(0x323)}},
        {"us", {GDK_KEY_1, GDK_KEY_2, GDK_KEY_3, GDK_KEY_4, GDK_KEY_9}}};
    for (const auto& [layout, keys] : layouts) {
        Keyboard::setLayout(layout);
        const auto& [one, two, three, four, nine] = keys;
        Keyboard::press(three, GDK_KEY_Control_L);
        EXPECT_TRUE(waitForInbox(DemoWorld::books)) << layout;
        Keyboard::press(one, GDK_KEY_Control_L);
        EXPECT_TRUE(waitForInbox(DemoWorld::flowers)) << layout;
        Keyboard::press(four, GDK_KEY_Control_L); // There are three.
        Keyboard::press(nine, GDK_KEY_Control_L);
        Keyboard::press(two, GDK_KEY_Control_L);
        EXPECT_TRUE(waitForInbox(DemoWorld::coffee)) << layout;
    }
    EXPECT_EQ(choices, 6);
}

TEST_F(InboxKeys, LoadThePageAgainGoHomeAndGoToTheSitesSearch) {
    Keyboard::press(GDK_KEY_k, GDK_KEY_Control_L);
    EXPECT_TRUE(waitUntil("document.activeElement.className === 'search'"));

    webView().evaluateScript("location.href = '/latest/inbox/help'");
    ASSERT_TRUE(waitUntil("document.title.startsWith('Trợ giúp')"));
    for (const auto& [key, modifier] :
         {std::pair(GDK_KEY_F5, 0), std::pair(GDK_KEY_r, GDK_KEY_Control_L)}) {
        askPage("window.isOld = true");
        Keyboard::press(key, modifier);
        EXPECT_TRUE(waitUntil("document.title.startsWith('Trợ giúp') && !window.isOld"));
    }
    Keyboard::press(GDK_KEY_Home, GDK_KEY_Alt_L);
    EXPECT_TRUE(waitForInbox(DemoWorld::flowers));
}

} // namespace
} // namespace tessaro::test
