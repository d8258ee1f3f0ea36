#include "ui/Inbox/InboxWorld.h"

#include "Views/Widgets/InboxCommands.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/WidgetPicture.h"

#include <webkit/webkit.h>

namespace tessaro::test {
namespace {

using namespace std::chrono_literals;

TEST(InboxBrowser, ShowsThePagesInboxAndAnotherPagesOnceAsADesktopChromeInTheSameZoom) {
    InboxWorld world;
    InboxBrowser browser(world, "1001");
    EXPECT_EQ(world.server.requests().at(0).headers.at("user-agent"), PageInboxWebView::userAgent);
    EXPECT_EQ(browser.ask("navigator.userAgent"), PageInboxWebView::userAgent);
    EXPECT_EQ(browser.ask("location.search"), "?asset_id=1001");
    const std::tuple<const char*, int, double> zooms[] = {
        {webViewZoomIn, 11, 2.0}, {webViewZoomOut, 16, 0.5}, {webViewZoomIn, 6, 1.1}};
    for (const auto& [command, times, zoom] : zooms) {
        for (int i = 0; i < times; ++i)
            world.notifications.post(command);
        EXPECT_NEAR(browser.webView().pageZoom(), zoom, 1e-9);
    }
    for (const char* pageId : {"1001", "1002", "1002"})
        browser.show(pageId);
    ASSERT_TRUE(browser.waitForLoads(2));
    runPending();
    EXPECT_EQ(world.server.requestCount(InboxWorld::inboxPath), 2U);
    EXPECT_EQ(browser.ask("location.search"), "?asset_id=1002");
    EXPECT_NEAR(browser.webView().pageZoom(), 1.1, 1e-9);
}

TEST(InboxBrowser, OpensNewWindowsInTheSameViewButNothingThatThePageMayNotReach) {
    InboxWorld world;
    InboxBrowser browser(world);
    const auto clickLink = [&](const std::string& address) {
        browser.ask(
            "Object.assign(document.body.appendChild(document.createElement('a')), "
            "{target: '_blank', href: \"" +
            address + "\"}).click()");
    };
    for (const std::string address :
         {"file:///etc/hostname", "javascript:document.title='owned'"}) {
        browser.ask("window.open(\"" + address + "\")");
        clickLink(address);
    }
    EXPECT_EQ(browser.ask("document.title"), "inbox");
    EXPECT_EQ(browser.startedLoads, 1);

    // A blob holds, for example, a picture that the web page has drawn.
    const std::string blob = "URL.createObjectURL(new Blob(['<title>blob</title>'], "
                             "{type: 'text/html'}))";
    const std::string other = world.otherServer.origin();
    const std::tuple<std::function<void()>, const char*, std::string> pages[] = {
        {[&] { clickLink("/elsewhere?%E1%"); }, "document.title", "elsewhere"},
        {[&] { browser.ask("window.open(" + blob + ")"); }, "document.title", "blob"},
        {[&] { clickLink("data:text/html,<title>data</title>"); }, "document.title", "data"},
        {[&] { browser.ask("window.open('" + other + "/elsewhere')"); }, "location.origin", other},
    };
    for (const auto& [open, expression, value] : pages) {
        const int before = browser.endedLoads;
        open();
        ASSERT_TRUE(browser.waitForLoads(before + 1)) << value;
        EXPECT_EQ(browser.ask(expression), value);
    }
}

TEST(InboxBrowser, GoesOnWithThePageWhereNoOtherOneComesOfALoad) {
    InboxWorld world;
    world.server.answer("/nothing", {.status = 204});
    world.server.answer(
        "/file",
        {.body = "x", .headers = {{"Content-Disposition", "attachment; filename=\"a.bin\""}}});
    InboxBrowser browser(world);
    auto* const settings =
        webkit_web_view_get_settings(WEBKIT_WEB_VIEW(browser.webView().widget().gobj()));
    int unread = 0;
    for (const char* address : {"#part", "/nothing", "/file"}) {
        browser.ask(std::string("window.open('") + address + "')");
        EXPECT_TRUE(runUntil([&] {
            return !browser.webView().isAwaitingPage() && !browser.webView().isLoading() &&
                   webkit_settings_get_enable_back_forward_navigation_gestures(settings);
        })) << address;
        browser.ask("document.title = '(" + std::to_string(++unread) + ") inbox'");
        EXPECT_TRUE(runUntil([&] { return world.inbox.unread->number == unread; })) << address;
        EXPECT_TRUE(runUntil([&] { return !browser.isLoading->get(); }));
    }
}

TEST(InboxBrowser, ShowsADarkPageOnlyOnceItIsDark) {
    InboxWorld world;
    world.theme.setAppearanceMode("dark");
    // Painted long before the load ends, and then too busy to change its style.
    world.server.answer(
        InboxWorld::inboxPath,
        InboxWorld::page("<style>html { background: #fff }</style><img "
                         "src=/late><script>requestAnimationFrame(() => "
                         "requestAnimationFrame(() => fetch('/painted')));"
                         "onload = () => setTimeout(() => {"
                         " for (const end = Date.now() + 500; Date.now() < end;); })</script>"));
    world.server.answer("/late", "");
    world.server.hold("/late");
    world.server.handle("/painted", [&](auto&, const auto&) { world.server.release(); });
    InboxBrowser browser(world);
    TestScreen::settle(browser.window);
    const Gdk::RGBA shown = WidgetPicture(*browser.container).at(400, 400);
    EXPECT_EQ(shown.get_alpha(), 1);
    EXPECT_LT(shown.get_green(), 0.9);
}

TEST(InboxBrowser, AsksThePagesQuestionsInAlertsOfTheProgram) {
    InboxWorld world;
    auto& alerts = world.modals.alerts;
    auto& answers = world.modals.answers;
    {
        InboxBrowser browser(world);
        const auto waitForAlert = [&](const std::string& script) {
            const std::size_t before = alerts.size();
            browser.webView().evaluateScript(script);
            ASSERT_TRUE(runUntil([&] { return alerts.size() > before; }));
            EXPECT_EQ(alerts.back().message, "Xóa hội thoại?");
        };
        using Button = std::optional<std::size_t>;
        for (const auto& [button, answer] :
             {std::pair(Button(1), "false"), std::pair(Button(), "false"),
              std::pair(Button(0), "true")}) {
            waitForAlert("window.answer = confirm('Xóa hội thoại?')");
            ASSERT_EQ(alerts.back().buttons, (std::vector<std::string>{"OK", "Hủy"}));
            answers.back()(button);
            EXPECT_EQ(browser.ask("window.answer"), answer);
        }
        waitForAlert("alert('Xóa hội thoại?'); window.answer = 'seen'");
        EXPECT_EQ(alerts.back().buttons.size(), 1U);
        answers.back()(0);
        EXPECT_EQ(browser.ask("window.answer"), "seen");
        waitForAlert("confirm('Xóa hội thoại?')");
    }
    answers.back()(0); // The web page that asked is gone.
    runPending();
}

TEST(InboxBrowser, StopsALoadThatMakesNoProgressForAMinute) {
    InboxWorld world(InboxWorld::Time::standsStill);
    world.server.handle(
        "/hangs", [](ServerConnection& connection, const auto&) { connection.waitForClose(); });
    InboxBrowser browser(world);
    browser.leaveFor("/hangs");
    // The server may know of it before the program does.
    ASSERT_TRUE(runUntil([&] { return browser.webView().isAwaitingPage(); }));
    EXPECT_FALSE(browser.isLoading->get()) << "The flag changes one turn after the event.";
    world.clock.advance(59s);
    runPending();
    EXPECT_TRUE(browser.isLoading->get());
    EXPECT_TRUE(runUntil([&] {
        world.clock.advance(1s);
        return !browser.isLoading->get();
    }));
    EXPECT_EQ(browser.startedLoads, 2);
}

TEST(InboxBrowser, UnderlinesWhatIsNeitherVietnameseNorEnglish) {
    InboxWorld world;
    world.server.answer(
        InboxWorld::inboxPath,
        InboxWorld::page("<body style='margin: 0 0 0 100px; font: 40px/100px sans-serif'>"
                         "<div id=answer contenteditable></div>"));
    InboxBrowser browser(world);
    browser.webView().widget().grab_focus();
    const auto isUnderlined = [&](int top) {
        const WidgetPicture picture(*browser.container);
        for (int y = top; y < top + 100; ++y)
            for (int x = 40; x < 700; ++x)
                if (const Gdk::RGBA at = picture.at(x, y); at.get_red() > at.get_green() + 0.4)
                    return true;
        return false;
    };
    browser.ask("answer.focus(), "
                "document.execCommand('insertText', false, 'xin chào hello nghiêng '), "
                "document.execCommand('insertLineBreak'), "
                "document.execCommand('insertText', false, 'nghiênng helllo ')");
    EXPECT_TRUE(runUntil([&] { return isUnderlined(100); }));
    EXPECT_FALSE(isUnderlined(0));
}

} // namespace
} // namespace tessaro::test
