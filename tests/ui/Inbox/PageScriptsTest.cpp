#include "ui/Inbox/InboxWorld.h"

#include "Views/InboxCommands.h"
#include "support/ManualClock.h"

#include <gtest/gtest.h>

namespace tessaro::test {
namespace {

using namespace std::chrono_literals;

const std::string hiderCount = "document.querySelectorAll('#__tsr_topbar_hide').length";
const std::string darkCount = "document.querySelectorAll('#__tsr_darkmode').length";

std::string styleOf(InboxBrowser& browser, const std::string& selector, const std::string& name) {
    return browser.ask(
        "getComputedStyle(document.querySelector('" + selector + "')).getPropertyValue('" + name +
        "')");
}

TEST(PageScripts, HideTheSitesOwnNavigationAndNothingElse) {
    InboxWorld world;
    world.server.answer(
        InboxWorld::inboxPath,
        InboxWorld::page(
            "<div data-testid=mbs_nav_bar>top</div>"
            "<div data-testid=mbs_side_nav>side</div>"
            "<div data-testid='BizWeb.SideNav'>side</div>"
            "<div data-pagelet=LeftRail>rail</div><div data-pagelet=left_nav>rail</div>"
            "<p id=thread>Xin chào</p>"));
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));

    EXPECT_EQ(styleOf(browser, "[data-testid=mbs_nav_bar]", "display"), "none");
    for (const char* rail :
         {"[data-testid=mbs_side_nav]", "[data-testid=\"BizWeb.SideNav\"]",
          "[data-pagelet=LeftRail]", "[data-pagelet=left_nav]"}) {
        EXPECT_EQ(styleOf(browser, rail, "visibility"), "hidden") << rail;
        EXPECT_EQ(styleOf(browser, rail, "pointer-events"), "none") << rail;
        EXPECT_EQ(styleOf(browser, rail, "width"), "0px") << rail;
    }
    EXPECT_EQ(styleOf(browser, "#thread", "visibility"), "visible");
}

TEST(PageScripts, RunOnTheInboxSiteOnlySaveForTheThemeCommand) {
    ManualClock clock; // A late run of the hider would meet the other page.
    InboxWorld world(clock);
    world.theme.setAppearanceMode("dark");
    InboxBrowser browser(world);
    const auto waitForLoads = [&](int count) {
        return runUntil([&] {
            clock.advance(0ms);
            return browser.endedLoads == count;
        });
    };
    ASSERT_TRUE(waitForLoads(1));
    EXPECT_EQ(browser.ask(hiderCount + "+" + darkCount), "2");

    browser.follow(world.otherServer.origin() + "/elsewhere");
    ASSERT_TRUE(waitForLoads(2));
    EXPECT_EQ(browser.ask(darkCount), "0");
    EXPECT_EQ(browser.ask(hiderCount), "0");
    world.notifications.post(webViewThemeChanged);
    EXPECT_EQ(browser.ask(darkCount), "1");
}

TEST(PageScripts, DoNotRunInThePageThatTellsOfAFailedLoad) {
    InboxWorld world;
    world.endpoints.inboxOrigin = LoopbackServer().origin(); // Nobody listens there any more.
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    ASSERT_TRUE(browser.waitUntil("document.body.innerText.includes('refused')"));
    runPending();
    EXPECT_EQ(browser.webView().address(), browser.coordinator->homeURL());
    EXPECT_EQ(browser.ask(hiderCount), "0");
    EXPECT_EQ(browser.startedLoads, 1);
    EXPECT_EQ(browser.endedLoads, 1);
}

TEST(PageScripts, DarkStyleFollowsTheThemeWithoutAReload) {
    InboxWorld world;
    world.server.answer(InboxWorld::inboxPath, InboxWorld::page("<p>text</p><canvas></canvas>"));
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    EXPECT_EQ(browser.ask(darkCount), "0");

    world.appearance.setDesktopDark(true); // The desktop's choice, which the mode "system" follows.
    world.notifications.post(webViewThemeChanged);
    world.notifications.post(webViewThemeChanged);
    EXPECT_EQ(browser.ask(darkCount), "1");
    EXPECT_EQ(styleOf(browser, "html", "filter"), "invert(0.88) hue-rotate(180deg)");
    EXPECT_EQ(styleOf(browser, "body", "background-color"), "rgb(26, 26, 26)");
    EXPECT_EQ(styleOf(browser, "canvas", "filter"), "invert(1) hue-rotate(180deg)");

    world.notifications.post(webViewReload);
    ASSERT_TRUE(browser.waitForLoads(2));
    EXPECT_EQ(browser.ask(darkCount), "1");

    world.theme.setAppearanceMode("light");
    world.notifications.post(webViewThemeChanged);
    EXPECT_EQ(browser.ask(darkCount), "0");
    EXPECT_EQ(styleOf(browser, "html", "filter"), "none");
}

TEST(PageScripts, HiderRunsAgainAtFiveMomentsUpToTenSeconds) {
    ManualClock clock;
    InboxWorld world(clock);
    InboxBrowser browser(world);
    ASSERT_TRUE(runUntil([&] { return clock.pending() >= 5 && browser.ask(hiderCount) == "1"; }));
    clock.advance(0ms);

    const auto take = [&] { browser.ask("document.querySelector('#__tsr_topbar_hide').remove()"); };
    auto passed = 0ms;
    for (const auto moment : {500ms, 1500ms, 3000ms, 6000ms, 10000ms}) {
        take();
        clock.advance(moment - passed - 1ms);
        EXPECT_EQ(browser.ask(hiderCount), "0") << moment.count();
        clock.advance(1ms);
        EXPECT_EQ(browser.ask(hiderCount), "1") << moment.count();
        passed = moment;
    }
    EXPECT_EQ(clock.pending(), 0U);
}

TEST(PageScripts, HiderRunsOfTwoLoadsLeaveOneStyleElement) {
    InboxWorld world;
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    world.notifications.post(webViewReload);
    ASSERT_TRUE(browser.waitForLoads(2));
    browser.ask(
        "(window.runs = 0, new MutationObserver(all => all.forEach(one => "
        "window.runs += one.addedNodes.length)).observe(document.head, {childList: true}))");
    // Five of the second load, and those of the first that its own page did not see.
    ASSERT_TRUE(runUntil([&] { return browser.ask("window.runs >= 9") == "true"; }, 15s));
    EXPECT_EQ(browser.ask(hiderCount), "1");
}

TEST(PageScripts, HiderKeepsThePageOfADroppedBrowserNoLongerThanItsRuns) {
    ManualClock clock;
    InboxWorld world(clock);
    std::weak_ptr<WebView> webView;
    {
        InboxBrowser browser(world);
        ASSERT_TRUE(runUntil([&] { return clock.pending() >= 5; }));
        webView = browser.coordinator->mainWebView();
    }
    clock.advance(9999ms);
    runPending();
    EXPECT_FALSE(webView.expired());
    clock.advance(1ms);
    EXPECT_TRUE(webView.expired());
}

struct SearchPage {
    const char* body;
    const char* focused; ///< The id of the field that gets the cursor; empty for none.
};

TEST(PageScripts, CursorGoesToTheFirstVisibleSearchField) {
    const SearchPage pages[] = {
        {"<input id=a><input id=b type=search>", "b"},
        {"<input id=a placeholder='Tìm kiếm cuộc trò chuyện'>", "a"},
        {"<textarea id=a placeholder='Search Messenger'></textarea>", "a"},
        {"<div id=a role=searchbox contenteditable></div>", "a"},
        {"<div role=search><input id=a></div>", "a"},
        {"<input type=search style='display:none'><div style='visibility:hidden'>"
         "<input type=search></div><input type=search disabled><input id=d type=search>",
         "d"},
        {"<input id=a placeholder='Trả lời'>", ""},
    };
    InboxWorld world;
    for (std::size_t i = 0; i < std::size(pages); ++i)
        world.server.answer("/page" + std::to_string(i), InboxWorld::page(pages[i].body));
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    for (std::size_t i = 0; i < std::size(pages); ++i) {
        browser.follow("/page" + std::to_string(i));
        ASSERT_TRUE(browser.waitForLoads(static_cast<int>(i) + 2));
        world.notifications.post(focusSearchField);
        EXPECT_EQ(browser.ask("document.activeElement.id"), pages[i].focused) << pages[i].body;
    }
}

} // namespace
} // namespace tessaro::test
