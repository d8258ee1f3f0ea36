#include "ui/Inbox/InboxWorld.h"

#include "Views/Widgets/InboxCommands.h"

#include <gmock/gmock.h>

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
            "<div data-testid=mbs_side_nav>side</div><div data-testid='BizWeb.SideNav'>side</div>"
            "<div data-pagelet=LeftRail>rail</div><div data-pagelet=left_nav>rail</div>"
            "<p id=thread>Xin chào</p>"));
    InboxBrowser browser(world);
    EXPECT_EQ(styleOf(browser, "[data-testid=mbs_nav_bar]", "display"), "none");
    for (const char* rail :
         {"[data-testid=mbs_side_nav]", "[data-testid=\"BizWeb.SideNav\"]",
          "[data-pagelet=LeftRail]", "[data-pagelet=left_nav]"}) {
        EXPECT_EQ(styleOf(browser, rail, "visibility"), "hidden") << rail;
        EXPECT_EQ(styleOf(browser, rail, "width"), "0px") << rail;
    }
    EXPECT_EQ(styleOf(browser, "#thread", "visibility"), "visible");
}

TEST(PageScripts, RunOnTheInboxSiteOnlySaveForTheThemeCommand) {
    // A late run of the hiding script would now run in the other web page.
    InboxWorld world(InboxWorld::Time::standsStill);
    world.theme.setAppearanceMode("dark");
    InboxBrowser browser(world);
    EXPECT_EQ(browser.ask(hiderCount + "+" + darkCount), "2");
    ASSERT_TRUE(browser.follow(world.otherServer.origin() + "/elsewhere"));
    world.theme.setActivePresetId("gold");
    EXPECT_EQ(browser.ask(hiderCount + "+" + darkCount), "0");
    world.notifications.post(webViewThemeChanged);
    EXPECT_EQ(browser.ask(darkCount), "1");
}

TEST(PageScripts, DoNotRunInThePageThatTellsOfAFailedLoad) {
    InboxWorld world;
    // That server has ended, so nobody listens there.
    world.endpoints.inboxOrigin = LoopbackServer().origin();
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitUntil("document.body.innerText.includes('refused')"));
    runPending();
    EXPECT_EQ(browser.webView().address(), world.endpoints.inboxAddress("1001"));
    EXPECT_EQ(browser.ask(hiderCount), "0");
    EXPECT_EQ(browser.startedLoads, 1);
    EXPECT_EQ(browser.endedLoads, 1);
}

TEST(PageScripts, DarkStyleFollowsTheThemeWithoutAReload) {
    InboxWorld world;
    world.server.answer(InboxWorld::inboxPath, InboxWorld::page("<p>text</p><canvas></canvas>"));
    InboxBrowser browser(world);
    EXPECT_EQ(browser.ask(darkCount), "0");

    world.appearance.setDesktopDark(true); // The mode "system" follows the desktop.
    EXPECT_EQ(browser.ask(darkCount), "1");
    world.notifications.post(webViewThemeChanged);
    EXPECT_EQ(browser.ask(darkCount), "1");
    EXPECT_EQ(styleOf(browser, "html", "filter"), "invert(0.88) hue-rotate(180deg)");
    EXPECT_EQ(styleOf(browser, "canvas", "filter"), "invert(1) hue-rotate(180deg)");

    world.notifications.post(webViewReload);
    ASSERT_TRUE(browser.waitForLoads(2));
    EXPECT_EQ(browser.ask(darkCount), "1");

    world.theme.setAppearanceMode("light");
    EXPECT_EQ(browser.ask(darkCount), "0");
    EXPECT_EQ(styleOf(browser, "html", "filter"), "none");
}

TEST(PageScripts, HiderRunsAgainForTenSecondsAndReplacesWhatItLeft) {
    InboxWorld world(InboxWorld::Time::standsStill);
    InboxBrowser browser(world);
    for (const auto passed : {500ms, 9500ms}) {
        browser.ask("document.querySelector('#__tsr_topbar_hide').className = 'old'");
        world.clock.advance(passed);
        EXPECT_EQ(browser.ask("document.querySelectorAll('.old').length"), "0");
        EXPECT_EQ(browser.ask(hiderCount), "1");
    }
    EXPECT_EQ(world.clock.pending(), 0U);
}

TEST(PageScripts, TellTheLogOnceADayWhetherTheSiteIsAsTheyKnowIt) {
    InboxWorld world(InboxWorld::Time::standsStill);
    const auto lineAfter = [&](const std::string& body) {
        world.server.answer(InboxWorld::inboxPath, InboxWorld::page(body));
        const std::string before = world.loggedLines();
        InboxBrowser browser(world);
        world.clock.advance(10s);
        browser.ask("0"); // Answered after the count.
        return world.loggedLines().substr(before.size());
    };
    world.logger.log("Start", "INFO");
    EXPECT_THAT(
        lineAfter("<div data-pagelet=LeftRail></div><div data-pagelet=LeftRail></div>"
                  "<nav style='position: fixed; top: 0; left: 70px; height: 100%'>Menu</nav>"),
        testing::EndsWith("[INFO] Inbox navigation: 2 found (0 0 0 2 0), seen: 1 left, 0 above\n"));
    EXPECT_EQ(lineAfter("<p>Another site</p>"), "");
    world.clock.advance(24h);
    world.logger.log("The next day's file", "INFO");
    EXPECT_THAT(
        lineAfter("<p>Another site</p>"),
        testing::EndsWith("[WARN] Inbox navigation: 0 found (0 0 0 0 0), seen: 0 left, 0 above\n"));
}

TEST(PageScripts, CursorGoesToTheFirstVisibleSearchField) {
    InboxWorld world;
    InboxBrowser browser(world);
    const std::pair<const char*, const char*> pages[] = {
        {"<input><input id=found type=search>", "found"},
        {"<input id=found placeholder=\"Tìm kiếm cuộc trò chuyện\">", "found"},
        {"<textarea id=found placeholder=\"Search Messenger\"></textarea>", "found"},
        {"<div id=found role=searchbox contenteditable></div>", "found"},
        {"<div role=search><input id=found></div>", "found"},
        {"<input type=search hidden><div style=\"visibility: hidden\"><input type=search></div>"
         "<input type=search disabled><input id=found type=search>",
         "found"},
        {"<input placeholder=\"Trả lời\">", ""},
    };
    for (const auto& [body, focused] : pages) {
        browser.ask(std::string("document.body.innerHTML = '") + body + "'");
        world.notifications.post(focusSearchField);
        EXPECT_EQ(browser.ask("document.activeElement.id"), focused) << body;
    }
}

} // namespace
} // namespace tessaro::test
