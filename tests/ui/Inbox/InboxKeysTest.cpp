#include "ui/Inbox/InboxScreen.h"

#include "Views/Shell/InfoWindow.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/Pointer.h"
#include "support/Gtk/TestScreen.h"

namespace tessaro::test {
namespace {

using InboxKeys = InboxScreen;

TEST_F(InboxKeys, FindInThePage) {
    const auto waitForText = [this](const std::string& text) {
        return runUntil([&] { return showsText(bar(), text); });
    };
    Keyboard::press(GDK_KEY_f, GDK_KEY_Control_L);
    ASSERT_TRUE(runUntil([&] { return bar().get_mapped(); }));
    type("thu"); // In lower case, as a person types in a hurry.
    EXPECT_TRUE(waitForText("4 kết quả"));
    // Each key leads to a place in an element of that class.
    const std::pair<std::function<void()>, const char*> steps[] = {
        {[] {}, "name"},
        {[] { Keyboard::press(GDK_KEY_Return); }, "last"},
        {[this] { press(bar(), "Kết quả trước"); }, "name"},
        {[] { Keyboard::press(GDK_KEY_Return, GDK_KEY_Shift_L); }, "customer"},
        {[this] { press(bar(), "Kết quả tiếp theo"); }, "name"},
    };
    for (const auto& [step, place] : steps) {
        step();
        EXPECT_TRUE(waitUntil(
            std::string("getSelection().anchorNode?.parentNode.className === '") + place + "'"));
    }
    type("x");
    EXPECT_TRUE(waitForText("Không tìm thấy"));
    Keyboard::press(GDK_KEY_Escape);
    EXPECT_FALSE(bar().get_visible());
    EXPECT_TRUE(pageHasKeyboard());

    Keyboard::press(GDK_KEY_f, GDK_KEY_Control_L);
    type("kraft"); // This replaces the former text.
    EXPECT_TRUE(waitForText("1 kết quả"));
    Keyboard::press(GDK_KEY_2, GDK_KEY_Control_L); // The bar goes with its web page.
    EXPECT_TRUE(waitForInbox(DemoWorld::coffee));
    EXPECT_FALSE(bar().get_visible());
    EXPECT_TRUE(pageHasKeyboard());
}

TEST_F(InboxKeys, ZoomThePageAndGoBackToItsNaturalSize) {
    const std::string width = ask(webView(), "innerWidth");
    for (const auto& [key, relation] :
         {std::pair(GDK_KEY_equal, "<"), std::pair(GDK_KEY_0, "==="), std::pair(GDK_KEY_minus, ">"),
          std::pair(GDK_KEY_0, "===")}) {
        Keyboard::press(key, GDK_KEY_Control_L);
        EXPECT_TRUE(waitUntil("innerWidth " + (relation + width)));
    }
    for (const auto& [isUp, relation] : {std::pair(true, "<"), std::pair(false, "===")}) {
        Keyboard::hold(GDK_KEY_Control_L, true);
        Pointer::scroll(webView().widget(), isUp);
        Keyboard::hold(GDK_KEY_Control_L, false);
        EXPECT_TRUE(waitUntil("innerWidth " + (relation + width))) << "The wheel zooms as well.";
    }
}

TEST_F(InboxKeys, GoRoundThePartsOfTheWindowOutOfThePageToo) {
    const auto place = [this]() -> std::string {
        auto* const focus = window.get_focus();
        for (const auto& [part, name] :
             {std::pair<Gtk::Widget*, const char*>(&only<AccountSidebar>(), "accounts"),
              {&only<PageListView>(), "Pages"},
              {&content->inbox(), "inbox"},
              {&only<FooterBar>(), "footer"}})
            if (focus && focus->is_ancestor(*part))
                return name;
        return "nowhere";
    };
    for (const char* next : {"footer", "accounts", "Pages", "inbox"}) {
        Keyboard::press(GDK_KEY_F6);
        EXPECT_EQ(place(), next);
    }
    EXPECT_TRUE(pageHasKeyboard());
    Keyboard::press(GDK_KEY_F6, GDK_KEY_Shift_L);
    EXPECT_EQ(place(), "Pages");
}

TEST_F(InboxKeys, ChooseAPageByItsPlaceInTheList) {
    int choices = 0;
    const auto counted = content->pagesVM().selectedPage.observe([&] { ++choices; });
    // The key symbols of the keys 1 to 4 and 9. The layout that the display starts with is last.
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
        Keyboard::press(four, GDK_KEY_Control_L); // There are only three Pages.
        Keyboard::press(nine, GDK_KEY_Control_L);
        Keyboard::press(two, GDK_KEY_Control_L);
        EXPECT_TRUE(waitForInbox(DemoWorld::coffee)) << layout;
    }
    EXPECT_EQ(choices, 6);
}

TEST_F(InboxKeys, LoadThePageAgainGoBackGoHomeAndGoToTheSitesSearch) {
    Keyboard::press(GDK_KEY_k, GDK_KEY_Control_L);
    EXPECT_TRUE(waitUntil("document.activeElement.className === 'search'"));

    const std::string isHelp = "document.title.startsWith('Trợ giúp')";
    const std::function<void()> waysHome[] = {
        [] { Keyboard::press(GDK_KEY_Home, GDK_KEY_Alt_L); },
        [this] { press(*content, "Quay về Hộp thư"); }};
    for (const auto& goHome : waysHome) {
        webView().evaluateScript("location.href = '/latest/inbox/help'");
        ASSERT_TRUE(waitUntil(isHelp));
        for (const auto& [key, modifier] :
             {std::pair(GDK_KEY_F5, 0), std::pair(GDK_KEY_r, GDK_KEY_Control_L)}) {
            ask(webView(), "window.isOld = true");
            Keyboard::press(key, modifier);
            EXPECT_TRUE(waitUntil(isHelp + " && !window.isOld"));
        }
        Keyboard::press(GDK_KEY_Left, GDK_KEY_Alt_L);
        EXPECT_TRUE(waitForInbox(DemoWorld::flowers));
        Keyboard::press(GDK_KEY_Right, GDK_KEY_Alt_L);
        EXPECT_TRUE(waitUntil(isHelp));
        goHome();
        EXPECT_TRUE(waitForInbox(DemoWorld::flowers));
    }
}

TEST_F(InboxKeys, CloseTheWindowWhoseSizeIsThereAgainTheNextTime) {
    for (const guint key : {GDK_KEY_w, GDK_KEY_q}) {
        MainWindow next(
            window.get_application(), world.notifications, world.inbox, realEngine(),
            world.settings);
        next.present();
        ASSERT_TRUE(runUntil([&] { return next.is_active(); }));
        TestScreen::settle(next);
        int width = 0, height = 0;
        next.get_default_size(width, height);
        EXPECT_EQ(width, key == GDK_KEY_w ? 1200 : 1010);
        next.set_default_size(1010, 700);
        ASSERT_TRUE(runUntil([&] { return next.get_width() <= 1010; }));
        TestScreen::settle(next);
        Keyboard::press(key, GDK_KEY_Control_L);
        EXPECT_TRUE(runUntil([&] { return !next.gobj() || !next.get_visible(); }));
    }
    EXPECT_EQ(world.settings.text("window_size"), "1010x700");
}

TEST_F(InboxKeys, AreListedByAWindowAndAnotherTellsAboutTheProgram) {
    for (const auto& [action, text] :
         {std::pair("win.shortcuts", "Tìm kiếm cuộc trò chuyện"),
          std::pair("win.about", "Phiên bản 1.2.0")}) {
        window.activate_action(action);
        auto* const shown = shownWindow<InfoWindow>();
        ASSERT_TRUE(shown) << action;
        TestScreen::settle(*shown);
        EXPECT_TRUE(showsText(*shown, text));
        ASSERT_TRUE(runUntil([&] { return shown->is_active(); }));
        Keyboard::press(GDK_KEY_Escape);
        EXPECT_TRUE(runUntil([] { return !shownWindow<InfoWindow>(); }));
    }
}

} // namespace
} // namespace tessaro::test
