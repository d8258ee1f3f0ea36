#include "ui/Inbox/InboxWorld.h"
#include "ui/Inbox/WebProcesses.h"

#include "Platform/Gtk/WebSandbox.h"
#include "Views/InboxCommands.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace tessaro::test {
namespace {

TEST(WebContent, RunsInTheSandboxOutOfSightOfTheRecords) {
    ASSERT_TRUE(webSandboxWorks());
    InboxWorld world;
    std::filesystem::create_directories(world.records);
    std::ofstream(world.records / "accounts.json") << "[]";
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));

    const auto processes = webProcesses();
    ASSERT_FALSE(processes.empty());
    for (const pid_t process : processes) {
        for (const char* kind : {"pid", "mnt", "net"})
            EXPECT_NE(namespaceOf(process, kind), namespaceOf(getpid(), kind)) << kind;
        EXPECT_EQ(statusOf(process, "Seccomp"), "2"); // A filter is on.
        EXPECT_EQ(statusOf(process, "NoNewPrivs"), "1");
        const std::filesystem::path root = "/proc/" + std::to_string(process) + "/root";
        ASSERT_TRUE(std::filesystem::exists(root / "usr"));
        EXPECT_FALSE(
            std::filesystem::exists(root / (world.records / "accounts.json").relative_path()));
    }
}

TEST(WebContent, ReachesNoLocalFileAndNoOtherProgram) {
    InboxWorld world;
    world.server.answer(
        "/to-file", {.status = 302, .headers = {{"Location", "file:///etc/hostname"}}});
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));

    browser.ask("document.body.appendChild(document.createElement('iframe')).src = "
                "'file:///etc/hostname'");
    browser.follow("file:///etc/hostname");
    browser.ask("fetch('file:///etc/hostname').then(() => window.fetched = 'yes', "
                "() => window.fetched = 'no')");
    ASSERT_TRUE(browser.waitUntil("window.fetched !== undefined"));
    EXPECT_EQ(browser.ask("window.fetched"), "no");
    EXPECT_EQ(browser.ask("document.title"), "inbox");
    EXPECT_EQ(browser.ask("frames[0].location.href"), "about:blank");

    // The engine ends a page that was redirected to a file.
    bool wasEnded = false;
    browser.coordinator->signalProcessTerminated().connect([&] { wasEnded = true; });
    browser.follow("/to-file");
    ASSERT_TRUE(browser.waitForLoads(2));
    EXPECT_TRUE(wasEnded);
    world.notifications.post(webViewGoHome);
    ASSERT_TRUE(browser.waitForLoads(3));
    EXPECT_EQ(browser.ask("document.title"), "inbox");

    // An address of another program's ends in the engine's own words about it.
    browser.follow("tessaro-other-program:start");
    ASSERT_TRUE(browser.waitForLoads(4));
    EXPECT_TRUE(world.desktop.opened.empty());
}

TEST(WebContent, GetsNoCameraMicrophoneOrLocation) {
    InboxWorld world;
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    browser.ask("((navigator.mediaDevices ? navigator.mediaDevices.getUserMedia({audio: true, "
                "video: true}) : Promise.reject()).then(() => window.media = 'yes', "
                "() => window.media = 'no'), "
                "navigator.geolocation.getCurrentPosition(() => window.place = 'yes', "
                "() => window.place = 'no'))");
    EXPECT_TRUE(browser.waitUntil("window.media === 'no' && window.place === 'no'"));
}

TEST(WebContent, DoesNotSurviveItsBrowser) {
    ManualClock clock;
    InboxWorld world(clock);
    {
        InboxBrowser browser(world);
        const auto waitForLoads = [&](int count) {
            return runUntil([&] {
                clock.advance(std::chrono::milliseconds(0));
                return browser.endedLoads == count;
            });
        };
        ASSERT_TRUE(waitForLoads(1));
        // Another site gets another process, and the first is kept for going back.
        const std::string port = std::to_string(world.otherServer.port());
        browser.follow("http://localhost:" + port + "/elsewhere");
        ASSERT_TRUE(waitForLoads(2));
        EXPECT_FALSE(webProcesses().empty());
    }
    clock.advance(std::chrono::seconds(10)); // The last run of a script that holds the page.
    EXPECT_TRUE(runUntil([] { return webProcesses().empty(); }));
}

TEST(WebContent, CookiesOutliveTheProgramInAFolderOfTheUsersOwn) {
    InboxWorld world;
    world.server.answer(InboxWorld::inboxPath, InboxWorld::page("<p>", "login=kept; Max-Age=3600"));
    {
        InboxBrowser browser(world);
        ASSERT_TRUE(browser.waitForLoads(1));
    }
    world.session = world.newSession();
    {
        InboxBrowser browser(world);
        ASSERT_TRUE(browser.waitForLoads(1));
    }
    EXPECT_EQ(world.server.requests().back().headers["cookie"], "login=kept");
    EXPECT_EQ(
        std::filesystem::status(world.folder / "web").permissions(),
        std::filesystem::perms::owner_all);
}

} // namespace
} // namespace tessaro::test
