#include "ui/Inbox/InboxWorld.h"

#include "Views/InboxCommands.h"

#include <gtest/gtest.h>

namespace tessaro::test {
namespace {

class UnreadCount : public testing::Test {
protected:
    UnreadCount() {
        world.otherServer.answer("/other", InboxWorld::page("<title>(9) Giỏ hàng</title>"));
        observed =
            world.notifications.observe(unreadCountChanged, [this](const Notification& posted) {
                count = posted.userInfo.at("count");
            });
    }
    bool waitForCount(const std::string& wanted) {
        return runUntil([&] { return count == wanted; });
    }

    DemoWorld world;
    std::string count;
    ScopedConnection observed;
};

TEST_F(UnreadCount, FollowsTheTitleOfTheInboxAndOfNoOtherSite) {
    InboxBrowser browser(world, DemoWorld::flowers);
    EXPECT_TRUE(waitForCount("2"));
    browser.follow(world.otherServer.origin() + "/other");
    ASSERT_TRUE(browser.waitForLoads(2));
    EXPECT_EQ(browser.ask("document.title"), "(9) Giỏ hàng");
    EXPECT_EQ(count, "");
}

TEST_F(UnreadCount, OfThePageBeforeIsNotTakenForThatOfTheNextOne) {
    InboxBrowser browser(world, DemoWorld::flowers);
    ASSERT_TRUE(waitForCount("2"));
    world.site.hold("inbox");
    browser.show(DemoWorld::coffee);
    EXPECT_EQ(count, "");
    ASSERT_TRUE(runUntil([&] { return browser.startedLoads == 2; }));
    EXPECT_EQ(browser.ask("document.title = '(4) A'"), "(4) A");
    EXPECT_EQ(count, "");
    world.site.release("inbox");
    EXPECT_TRUE(waitForCount("1"));
    browser.coordinator.reset();
    EXPECT_EQ(count, "");
}

} // namespace
} // namespace tessaro::test
