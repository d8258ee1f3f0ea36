#include "ui/Inbox/InboxWorld.h"

namespace tessaro::test {
namespace {

class TheSitesNotifications : public testing::Test {
protected:
    /// Lets the site ask for permission. Answers the program's question if one is shown.
    std::string permission(InboxBrowser& browser, std::optional<std::size_t> button) {
        const auto before = world.modals.answers.size();
        browser.ask("(window.answer = undefined, Notification.requestPermission()"
                    ".then(answer => window.answer = answer))");
        EXPECT_TRUE(runUntil([&] {
            if (world.modals.answers.size() > before)
                world.modals.answers.back()(button);
            return browser.ask("window.answer") != "undefined";
        }));
        return browser.ask("window.answer");
    }
    /// Sends an answer to a customer, who then writes back.
    bool receive(InboxBrowser& browser) {
        const auto before = world.desktop.notifications.size();
        EXPECT_TRUE(browser.waitForConversations());
        browser.ask("(document.querySelector('.answer').value = 'Dạ',"
                    " document.querySelector('.composer').requestSubmit())");
        return runUntil([&] { return world.desktop.notifications.size() > before; });
    }

    DemoWorld world;
    std::pair<std::string, std::string> requested; ///< Page and activation token.
    ScopedConnection observed = world.inbox.requested.connect(
        [this](const std::string& pageId, const std::string& activationToken) {
            requested = {pageId, activationToken};
        });
};

TEST_F(TheSitesNotifications, AreShownByTheDesktopAndLeadBackToTheirPage) {
    {
        InboxBrowser browser(world, DemoWorld::flowers);
        EXPECT_EQ(permission(browser, 1), "granted");
    }
    // As after a new start: the site has its permission at once, and no question is shown.
    InboxBrowser browser(world, DemoWorld::flowers);
    EXPECT_EQ(browser.ask("Notification.permission"), "granted");
    ASSERT_TRUE(receive(browser));
    const auto shown = world.desktop.notifications.back();
    EXPECT_EQ(shown.title, "Nguyễn Thu Hà");
    EXPECT_EQ(shown.body, "Dạ vâng, vậy chị đặt bó 20 bông nhé!");
    world.desktop.clicks.back()("token");
    EXPECT_EQ(requested.first, DemoWorld::flowers);
    EXPECT_EQ(requested.second, "token");
    EXPECT_TRUE(runUntil([&] {
        return world.desktop.withdrawn == std::vector<std::string>{shown.id};
    })) << "The site learns of the click and closes the notification.";

    world.site.hold("inbox");
    browser.show(DemoWorld::coffee);
    ASSERT_TRUE(receive(browser)) << "Flowers are still shown.";
    world.site.release("inbox");
    ASSERT_TRUE(browser.waitForLoads(2));
    EXPECT_EQ(world.desktop.withdrawn.size(), 1u) << "A click on it still leads to its Page.";
    requested = {};
    world.desktop.clicks.back()("");
    EXPECT_EQ(requested.first, DemoWorld::flowers);
    EXPECT_EQ(world.modals.alerts.size(), 1u);
}

TEST_F(TheSitesNotifications, StayRefusedOnceThePersonSaidNoAndNotWhenTheyOnlyClosedTheQuestion) {
    InboxBrowser browser(world);
    EXPECT_EQ(permission(browser, std::nullopt), "denied");
    ASSERT_TRUE(browser.follow("/latest/inbox/all?again"));
    EXPECT_EQ(permission(browser, 0), "denied");
    ASSERT_TRUE(browser.follow("/latest/inbox/all?oncemore"));
    EXPECT_EQ(permission(browser, 1), "denied");
    EXPECT_EQ(world.modals.alerts.size(), 2u);
}

TEST_F(TheSitesNotifications, AreNothingForOtherSites) {
    InboxBrowser browser(world);
    EXPECT_EQ(permission(browser, 1), "granted");
    // Other sites may not notify: in a frame, in the inbox's place, or while the inbox loads again.
    const std::string other = "http://localhost:" + std::to_string(world.otherServer.port());
    world.otherServer.answer(
        "/frame", InboxWorld::page("<script>Notification.requestPermission().then("
                                   "answer => parent.postMessage(answer, '*'))</script>"));
    browser.ask(
        "(addEventListener('message', event => window.framed = event.data), "
        "document.body.appendChild(document.createElement('iframe')).src = '" +
        other + "/frame')");
    EXPECT_TRUE(browser.waitUntil("window.framed === 'denied' || window.framed === 'default'"));
    ASSERT_TRUE(browser.follow(other + "/elsewhere"));
    EXPECT_EQ(permission(browser, 1), "denied");

    world.site.hold("inbox");
    browser.leaveFor(world.site.origin() + InboxWorld::inboxPath);
    ASSERT_TRUE(runUntil([&] { return browser.startedLoads == 3; }));
    EXPECT_EQ(permission(browser, 1), "denied");
    EXPECT_EQ(world.modals.alerts.size(), 1u);
    EXPECT_TRUE(world.desktop.notifications.empty());
}

} // namespace
} // namespace tessaro::test
