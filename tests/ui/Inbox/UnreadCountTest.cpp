#include "ui/Inbox/InboxWorld.h"

#include "Views/InboxCommands.h"

#include <gtest/gtest.h>

#include <atomic>

namespace tessaro::test {
namespace {

class UnreadCount : public testing::Test {
protected:
    UnreadCount() {
        world.server.answer(InboxWorld::inboxPath, InboxWorld::page("<title>(3) Hộp thư</title>"));
        world.otherServer.answer("/other", InboxWorld::page("<title>(9) Giỏ hàng</title>"));
        observed =
            world.notifications.observe(unreadCountChanged, [this](const Notification& posted) {
                count = posted.userInfo.at("count");
            });
    }
    bool waitForCount(const std::string& wanted) {
        return runUntil([&] { return count == wanted; });
    }

    InboxWorld world;
    std::string count;
    ScopedConnection observed;
};

TEST_F(UnreadCount, FollowsTheTitleOfTheInboxAndOfNoOtherSite) {
    InboxBrowser browser(world);
    EXPECT_TRUE(waitForCount("3"));
    browser.ask("document.title = '(20+) Hộp thư'");
    EXPECT_TRUE(waitForCount("20+"));
    browser.ask("document.title = 'Hộp thư'");
    EXPECT_TRUE(waitForCount(""));
    browser.ask("document.title = '(4) Hộp thư'");
    EXPECT_TRUE(waitForCount("4"));
    browser.follow(world.otherServer.origin() + "/other");
    ASSERT_TRUE(browser.waitForLoads(2));
    EXPECT_EQ(browser.ask("document.title"), "(9) Giỏ hàng");
    EXPECT_EQ(count, "");
}

TEST_F(UnreadCount, OfThePageBeforeIsNotTakenForThatOfTheNextOne) {
    std::atomic<bool> mayAnswer = false;
    world.server.handle(
        InboxWorld::inboxPath, [&](ServerConnection& connection, const ReceivedRequest& request) {
            const bool isFirst = request.target.ends_with("1001");
            while (!isFirst && !mayAnswer && connection.pause(std::chrono::milliseconds(5))) {
            }
            const std::string page = isFirst ? "<title>(3) A</title>" : "<title>(5) B</title>";
            connection.write(
                "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n"
                "Content-Length: " +
                std::to_string(page.size()) + "\r\n\r\n" + page);
        });
    InboxBrowser browser(world, "1001");
    ASSERT_TRUE(waitForCount("3"));
    browser.show("1002");
    EXPECT_EQ(count, "");
    ASSERT_TRUE(runUntil([&] { return browser.startedLoads == 2; }));
    EXPECT_EQ(browser.ask("document.title = '(4) A'"), "(4) A");
    EXPECT_EQ(count, "");
    mayAnswer = true;
    EXPECT_TRUE(waitForCount("5"));
    browser.coordinator.reset();
    EXPECT_EQ(count, "");
}

} // namespace
} // namespace tessaro::test
