#include "ui/Inbox/InboxWorld.h"

#include "Views/Widgets/InboxCommands.h"

namespace tessaro::test {
namespace {

TEST(UnreadCount, FollowsTheTitleOfTheInboxThatIsShownAndOfNoOtherSite) {
    DemoWorld world;
    world.otherServer.answer("/other", InboxWorld::page("<title>(9) Giỏ hàng</title>"));
    const auto count = [&] { return world.inbox.unread->number; };
    const auto waitForCount = [&](int wanted) {
        return runUntil([&] { return count() == wanted; });
    };
    InboxBrowser browser(world, DemoWorld::flowers);
    ASSERT_TRUE(waitForCount(2));

    world.site.hold("inbox");
    browser.show(DemoWorld::coffee);
    ASSERT_TRUE(runUntil([&] { return browser.startedLoads == 2; }));
    EXPECT_EQ(browser.ask("document.title = '(4) A'"), "(4) A");
    EXPECT_EQ(count(), 0) << "The title of the old web page does not count for the next one.";
    world.site.release("inbox");
    EXPECT_TRUE(waitForCount(1));
    ASSERT_TRUE(browser.waitForLoads(2));

    ASSERT_TRUE(browser.follow(world.otherServer.origin() + "/other"));
    EXPECT_EQ(browser.ask("document.title"), "(9) Giỏ hàng");
    EXPECT_EQ(count(), 0);
    world.notifications.post(webViewGoHome);
    EXPECT_TRUE(waitForCount(1));
    browser.coordinator.reset();
    EXPECT_EQ(count(), 0);
}

} // namespace
} // namespace tessaro::test
