#include "ui/Inbox/InboxWorld.h"
#include "ui/Inbox/WebProcesses.h"

#include "Views/Inbox/InboxContainerView.h"
#include "Views/Widgets/InboxCommands.h"
#include "support/Gtk/Widgets.h"
#include "support/ScopedEnvironment.h"

#include <gtest/gtest.h>

#include <csignal>
#include <optional>

namespace tessaro::test {
namespace {

class InboxContainer : public testing::Test {
protected:
    void show() {
        container.emplace(world.browserContext, makePage(account, "1001"), account, browsers);
        window.set_default_size(800, 600);
        window.set_child(*container);
        window.present();
    }
    std::size_t inboxRequests() const { return world.server.requestCount(InboxWorld::inboxPath); }
    bool isShown(const std::string& text) { return showsText(*container, text); }
    bool waitForLoaded() {
        const std::string veil = "Đang tải hộp thư...";
        return runUntil([&] { return isShown(veil); }) && runUntil([&] { return !isShown(veil); });
    }

    InboxWorld world;
    WebViewReserve browsers{
        engine(), world.folder / "web", world.folder / "web-cache", world.browserContext.clock, {}};
    const Account account = makeAccount();
    Gtk::Window window;
    std::optional<InboxContainerView> container;
};

TEST_F(InboxContainer, OffersToLoadThePageAgainAfterItsProcessCrashed) {
    show();
    ASSERT_TRUE(waitForLoaded());
    ASSERT_FALSE(webProcesses().empty());
    for (const pid_t process : webProcesses())
        kill(process, SIGKILL);
    ASSERT_TRUE(runUntil([&] { return isShown("Tải lại trang"); }));
    EXPECT_TRUE(widgetsOf<ClippedWebViewContainer>(*container).empty());

    press(*container, "Tải lại trang");
    ASSERT_TRUE(runUntil([&] { return inboxRequests() == 2; }));
    EXPECT_TRUE(runUntil([&] { return !widgetsOf<ClippedWebViewContainer>(*container).empty(); }));
    EXPECT_FALSE(isShown("Tải lại trang"));
}

TEST_F(InboxContainer, SaysWhatToDoWhereTheSandboxIsForbidden) {
    {
        ScopedEnvironment environment; // Nothing that makes a sandbox is found there.
        environment.set("PATH", world.folder.path());
        show();
    }
    ASSERT_TRUE(runUntil([&] { return isShown("vùng cách ly"); }));
    EXPECT_EQ(inboxRequests(), 0U);

    container->setPage(makePage(account, "1002"), account);
    ASSERT_TRUE(waitForLoaded());
    EXPECT_FALSE(isShown("vùng cách ly"));
}

TEST_F(InboxContainer, IsDroppedWhileItLoads) {
    show();
    ASSERT_TRUE(waitForLoaded());
    container->setPage(makePage(account, "1002"), account);
    window.unset_child();
    container.reset();
    world.notifications.post(webViewReload);
    runPending();
    EXPECT_LE(inboxRequests(), 2U);
}

} // namespace
} // namespace tessaro::test
