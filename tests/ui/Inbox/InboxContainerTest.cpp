#include "ui/Inbox/InboxWorld.h"
#include "ui/Inbox/WebProcesses.h"

#include "Views/InboxCommands.h"
#include "Views/InboxContainerView.h"
#include "support/Gtk/WidgetPicture.h"
#include "support/Gtk/WidgetTree.h"

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <optional>

namespace tessaro::test {
namespace {

class InboxContainer : public testing::Test {
protected:
    void show(const std::string& pageId = "1001") {
        container.emplace(world.browserContext, makePage(account, pageId), account, browsers);
        window.set_default_size(800, 600);
        window.set_child(*container);
        window.present();
    }
    std::size_t inboxRequests() const { return world.server.requestCount(InboxWorld::inboxPath); }
    bool isShown(const std::string& text) {
        for (Gtk::Label* label : descendants<Gtk::Label>(*container))
            if (label->get_text().find(text) != std::string::npos && label->get_mapped())
                return true;
        return false;
    }
    bool waitForShown(const std::string& text) {
        return runUntil([&] { return isShown(text); });
    }
    bool waitForLoaded() {
        return runUntil([&] { return isShown(veil); }) && runUntil([&] { return !isShown(veil); });
    }

    /// Waits until what is shown is so much more red than green. Looks only now and then, since to
    /// look takes longer than to draw.
    bool waitForRedness(double least, double most) {
        bool mayLook = true;
        ScopedConnection pause;
        return runUntil([&] {
            if (!mayLook)
                return false;
            mayLook = false;
            pause = SystemClock::shared().timer(
                std::chrono::milliseconds(100), [&] { mayLook = true; });
            const Rgba colour = WidgetPicture(*container).at(700, 100);
            return least <= colour.red - colour.green && colour.red - colour.green <= most;
        });
    }

    const std::string veil = "Đang tải hộp thư...";
    InboxWorld world;
    WebViewReserve browsers{
        world.browserContext.clock, {}, [this]() -> const WebSession& { return *world.session; }};
    const Account account = makeAccount();
    Gtk::Window window;
    std::optional<InboxContainerView> container;
};

TEST_F(InboxContainer, OpensTheFirstPageInTheProcessThatWasMadeReady) {
    browsers.prepare();
    ASSERT_TRUE(runUntil([] { return webProcesses().size() == 1; }));
    const auto ready = webProcesses();
    show();
    ASSERT_TRUE(waitForLoaded());
    EXPECT_EQ(inboxRequests(), 1u);
    EXPECT_EQ(webProcesses(), ready);
}

TEST_F(InboxContainer, VeilsThePageWhileItLoads) {
    std::atomic<bool> mayAnswer = false;
    world.server.handle(
        InboxWorld::inboxPath, [&](ServerConnection& connection, const ReceivedRequest&) {
            while (!mayAnswer && connection.pause(std::chrono::milliseconds(5))) {
            }
            const std::string page = "<body style='background: red'>inbox";
            connection.write(
                "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n"
                "Content-Length: " +
                std::to_string(page.size()) + "\r\n\r\n" + page);
        });
    show();
    EXPECT_FALSE(isShown(veil));
    ASSERT_TRUE(waitForShown(veil));
    mayAnswer = true;
    ASSERT_TRUE(runUntil([&] { return !isShown(veil); }));
    ASSERT_TRUE(waitForRedness(0.9, 1.0));

    mayAnswer = false;
    world.notifications.post(webViewReload);
    ASSERT_TRUE(waitForShown(veil));
    EXPECT_TRUE(waitForRedness(0.1, 0.6)); // The page shines through its veil.
    mayAnswer = true;
    ASSERT_TRUE(runUntil([&] { return !isShown(veil); }));
    EXPECT_TRUE(waitForRedness(0.9, 1.0));
}

TEST_F(InboxContainer, KeepsItsBrowserFromPageToPage) {
    show("1001");
    ASSERT_TRUE(waitForLoaded());
    Gtk::Widget* browser = descendants<ClippedWebViewContainer>(*container).at(0);
    container->setPage(makePage(account, "1002"), account);
    ASSERT_TRUE(waitForLoaded());
    EXPECT_EQ(descendants<ClippedWebViewContainer>(*container).at(0), browser);
    EXPECT_EQ(world.server.requests().back().target, "/latest/inbox/all?asset_id=1002");
}

TEST_F(InboxContainer, OffersToLoadThePageAgainAfterItsProcessCrashed) {
    show();
    ASSERT_TRUE(waitForLoaded());
    const auto processes = webProcesses();
    ASSERT_FALSE(processes.empty());
    for (const pid_t process : processes)
        kill(process, SIGKILL);
    ASSERT_TRUE(waitForShown("Tải lại trang"));
    EXPECT_FALSE(descendants<ClippedWebViewContainer>(*container).at(0)->get_mapped());

    for (Gtk::Button* button : descendants<Gtk::Button>(*container))
        if (button->get_label() == "Tải lại trang")
            gtk_widget_activate(GTK_WIDGET(button->gobj()));
    ASSERT_TRUE(runUntil([&] { return inboxRequests() == 2; }));
    ASSERT_TRUE(runUntil(
        [&] { return descendants<ClippedWebViewContainer>(*container).at(0)->get_mapped(); }));
    EXPECT_FALSE(isShown("Tải lại trang"));
}

TEST_F(InboxContainer, SaysWhatToDoWhereTheSandboxIsForbidden) {
    const std::string path = std::getenv("PATH");
    setenv("PATH", world.folder.path().c_str(), 1); // Nothing that makes a sandbox is found there.
    show();
    setenv("PATH", path.c_str(), 1);
    ASSERT_TRUE(waitForShown("vùng cách ly"));
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
    EXPECT_TRUE(runUntil([&] { return inboxRequests() <= 2; }));
    runPending();
}

} // namespace
} // namespace tessaro::test
