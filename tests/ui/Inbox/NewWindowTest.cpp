#include "ui/Inbox/InboxWorld.h"

#include "Views/Widgets/InboxCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessaro::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre, testing::IsEmpty;

TEST(NewWindow, IsThereForScriptsAndIsLoadedInTheSameViewOnceItIsLedToAPage) {
    InboxWorld world;
    InboxBrowser browser(world);
    const auto windows = Gtk::Window::list_toplevels().size();
    for (const char* address : {"", "about:blank"}) {
        browser.ask(std::string("(opened = window.open('") + address + "'), 0)");
        EXPECT_EQ(browser.ask("opened.closed"), "false");
        EXPECT_EQ(
            browser.ask("[opened.alert('not seen'), opened.location.href][1]"), "about:blank");
    }
    browser.ask("Object.assign(document.body.appendChild(document.createElement('a')), "
                "{target: '_blank', href: 'about:blank'}).click()");
    browser.ask("opened.close()");
    EXPECT_TRUE(browser.waitUntil("opened.closed"));
    browser.ask("Array(20).fill().forEach(() => opened = window.open('') ?? opened)");
    EXPECT_EQ(browser.ask("document.title"), "inbox");
    EXPECT_EQ(browser.startedLoads, 1);

    browser.ask("setTimeout(() => opened.location = '/elsewhere', 50)");
    ASSERT_TRUE(browser.waitForLoads(2));
    EXPECT_EQ(browser.ask("document.title"), "elsewhere");
    EXPECT_EQ(Gtk::Window::list_toplevels().size(), windows);

    browser.ask("document.body.innerHTML = '<form method=post target=_blank action=/elsewhere>"
                "<input name=order value=7></form>', document.forms[0].submit()");
    ASSERT_TRUE(browser.waitForLoads(3));
    EXPECT_EQ(world.server.requests().back().method, "POST");
    EXPECT_EQ(world.server.requests().back().body, "order=7");
}

TEST(NewWindow, GoesToAnotherProgramForAnAddressThatIsNoPageAndOnlyOnAClick) {
    InboxWorld world(InboxWorld::Time::standsStill);
    InboxBrowser browser(world);
    auto& opened = world.desktop.openedElsewhere;
    for (const char* script :
         {"location = 'mailto:a@example.org'", "window.open('tel:113')",
          "document.body.appendChild(document.createElement('iframe')).src = 'sms:113'",
          "Object.assign(document.body.appendChild(document.createElement('a')), "
          "{href: 'mailto:a@example.org', target: '_blank'}).dispatchEvent(new Event('click'))"})
        // The engine takes what a program evaluates for the person's doing, but not this.
        browser.ask(std::string("setTimeout(() => { ") + script + "; did = true; }, 1500)");
    EXPECT_TRUE(browser.waitUntil("window.did"));
    EXPECT_THAT(opened, IsEmpty());

    browser.ask("document.body.innerHTML = '<a id=mail href=\"mailto:a@example.org\" "
                "style=\"position: fixed; left: 200px; top: 100px\">a</a>"
                "<button id=call style=\"position: fixed; left: 200px; top: 200px\">b</button>'");
    browser.ask("call.onclick = () => { for (let i = 0; i < 5; ++i) window.open('tel:113'); }");
    clickOn(browser.webView(), "#mail");
    EXPECT_TRUE(runUntil([&] { return opened.size() == 1; }));
    world.clock.advance(1s);
    clickOn(browser.webView(), "#call");
    EXPECT_TRUE(runUntil([&] { return opened.size() == 2; }));
    EXPECT_THAT(opened, ElementsAre("mailto:a@example.org", "tel:113"));
    EXPECT_EQ(browser.ask("document.title"), "inbox");
    EXPECT_FALSE(browser.webView().isAwaitingPage());
    EXPECT_EQ(browser.webView().address(), browser.ask("location.href"));
}

} // namespace
} // namespace tessaro::test
