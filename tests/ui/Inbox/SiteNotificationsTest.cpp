#include "ui/Inbox/InboxWorld.h"

#include "Views/InboxCommands.h"

#include <gtest/gtest.h>

namespace tessaro::test {
namespace {

class TheSitesNotifications : public testing::Test {
protected:
    TheSitesNotifications() {
        observed = world.notifications.observe(
            inboxRequested, [this](const Notification& posted) { requested = posted.userInfo; });
    }
    /// Lets the page ask, and the person answer when they are asked.
    std::string permission(InboxBrowser& browser, std::size_t button) {
        const auto asked = world.modals.answers.size();
        browser.ask("(window.answer = undefined, Notification.requestPermission()"
                    ".then(answer => window.answer = answer))");
        EXPECT_TRUE(runUntil([&] {
            if (world.modals.answers.size() > asked && !isAnswered) {
                isAnswered = true;
                world.modals.answers.back()(button);
            }
            return browser.ask("window.answer") != "undefined";
        }));
        isAnswered = false;
        return browser.ask("window.answer");
    }
    bool notify(InboxBrowser& browser, const std::string& title, const std::string& options) {
        const auto before = world.desktop.notifications.size();
        browser.ask(
            "window.shown = Object.assign(new Notification('" + title + "', " + options +
            "), {onclick: () => window.clicked = true})");
        return runUntil([&] { return world.desktop.notifications.size() > before; });
    }

    InboxWorld world;
    std::map<std::string, std::string> requested;
    ScopedConnection observed;
    bool isAnswered = false;
};

TEST_F(TheSitesNotifications, AreShownByTheDesktopAndLeadBackToTheirPage) {
    {
        InboxBrowser browser(world, "1001");
        ASSERT_TRUE(browser.waitForLoads(1));
        EXPECT_EQ(permission(browser, 1), "granted");
        ASSERT_EQ(world.modals.alerts.size(), 1u);
        EXPECT_NE(
            world.modals.alerts[0].message.find("127.0.0.1:" + std::to_string(world.server.port())),
            std::string::npos);
        EXPECT_TRUE(world.modals.alerts[0].buttons[0].isCancel);
    }
    // As after a new start: the page has its permission at once, and nobody is asked.
    InboxBrowser browser(world, "1002");
    ASSERT_TRUE(browser.waitForLoads(1));
    EXPECT_EQ(browser.ask("Notification.permission"), "granted");
    ASSERT_TRUE(notify(browser, "Mai", "{body: 'Còn hàng <không>?'}"));
    const auto shown = world.desktop.notifications.back();
    EXPECT_EQ(shown.title, "Mai");
    EXPECT_EQ(shown.body, "Còn hàng <không>?");
    world.desktop.clicks.back()("token");
    EXPECT_EQ(requested["pageId"], "1002");
    EXPECT_EQ(requested["activationToken"], "token");
    EXPECT_TRUE(browser.waitUntil("window.clicked === true"));

    browser.ask("window.shown.close()");
    EXPECT_TRUE(
        runUntil([&] { return world.desktop.withdrawn == std::vector<std::string>{shown.id}; }));

    ASSERT_TRUE(notify(browser, "Lan", "{}"));
    browser.show("1003");
    ASSERT_TRUE(browser.waitForLoads(2));
    EXPECT_EQ(world.desktop.withdrawn.size(), 1u) << "It is still of use.";
    world.desktop.clicks.back()("");
    EXPECT_EQ(requested["pageId"], "1002");
    EXPECT_EQ(world.modals.alerts.size(), 1u);
}

TEST_F(TheSitesNotifications, StayRefusedOnceThePersonSaidNo) {
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    EXPECT_EQ(permission(browser, 0), "denied");
    browser.follow("/latest/inbox/all?again");
    ASSERT_TRUE(browser.waitForLoads(2));
    EXPECT_EQ(permission(browser, 1), "denied");
    EXPECT_EQ(world.modals.alerts.size(), 1u);
    EXPECT_EQ(
        SettingsStore(world.folder / "config" / "settings.ini").text("site_notifications"),
        "refused " + world.server.origin());
}

TEST_F(TheSitesNotifications, AreNothingForOtherSites) {
    world.server.handle("/slow", [](ServerConnection& connection, const ReceivedRequest&) {
        connection.waitForClose();
    });
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    EXPECT_EQ(permission(browser, 1), "granted");
    // Neither within the inbox, nor in its place, nor while the inbox is on its way back.
    const std::string other = "http://localhost:" + std::to_string(world.otherServer.port());
    world.otherServer.answer(
        "/frame", InboxWorld::page("<script>Notification.requestPermission().then("
                                   "answer => parent.postMessage(answer, '*'))</script>"));
    browser.ask(
        "(addEventListener('message', event => window.framed = event.data), "
        "document.body.appendChild(document.createElement('iframe')).src = '" +
        other + "/frame')");
    EXPECT_TRUE(browser.waitUntil("window.framed === 'denied' || window.framed === 'default'"));
    browser.follow(other + "/elsewhere");
    ASSERT_TRUE(browser.waitForLoads(2));
    EXPECT_EQ(permission(browser, 1), "denied");

    browser.follow(world.server.origin() + "/slow");
    ASSERT_TRUE(runUntil([&] { return browser.startedLoads == 3; }));
    EXPECT_EQ(permission(browser, 1), "denied");
    EXPECT_EQ(world.modals.alerts.size(), 1u);
    EXPECT_TRUE(world.desktop.notifications.empty());
}

TEST_F(TheSitesNotifications, KeepAnAnswerThatComesAfterThePage) {
    {
        InboxBrowser browser(world);
        ASSERT_TRUE(browser.waitForLoads(1));
        browser.ask("void Notification.requestPermission()");
        ASSERT_TRUE(runUntil([&] { return world.modals.answers.size() == 1; }));
    }
    world.modals.answers[0](1);
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    EXPECT_EQ(browser.ask("Notification.permission"), "granted");
}

} // namespace
} // namespace tessaro::test
