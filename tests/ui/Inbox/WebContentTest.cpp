#include "ui/Inbox/InboxWorld.h"
#include "ui/Inbox/WebProcesses.h"

#include "Platform/FileStore.h"
#include "Views/Widgets/InboxCommands.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

TEST(WebContent, RunsInTheSandboxOutOfSightOfTheRecords) {
    ASSERT_TRUE(loadedEngine()->worksHere());
    InboxWorld world;
    world.store.saveAccounts({makeAccount()});
    const fs::path accounts = world.records / "accounts.json";
    ASSERT_TRUE(fs::exists(accounts));
    InboxBrowser browser(world);

    ASSERT_FALSE(webProcesses().empty());
    for (const pid_t id : webProcesses()) {
        const fs::path process = "/proc/" + std::to_string(id);
        for (const char* kind : {"ns/pid", "ns/mnt", "ns/net"})
            EXPECT_NE(
                fs::read_symlink(process / kind), fs::read_symlink(fs::path("/proc/self") / kind))
                << kind;
        const std::string status = readFile(process / "status").value_or("");
        EXPECT_THAT(status, HasSubstr("\nSeccomp:\t2\n")) << "A filter is on.";
        EXPECT_THAT(status, HasSubstr("\nNoNewPrivs:\t1\n"));
        ASSERT_TRUE(fs::exists(process / "root/usr"));
        EXPECT_FALSE(fs::exists(process / "root" / accounts.relative_path()));
    }
}

TEST(WebContent, ReachesNoLocalFileAndNoOtherProgram) {
    InboxWorld world;
    world.server.answer(
        "/to-file", {.status = 302, .headers = {{"Location", "file:///etc/hostname"}}});
    InboxBrowser browser(world);
    browser.ask("document.body.appendChild(document.createElement('iframe')).src = "
                "'file:///etc/hostname'");
    browser.leaveFor("file:///etc/hostname");
    browser.ask("fetch('file:///etc/hostname').then(() => window.fetched = 'yes', "
                "() => window.fetched = 'no')");
    EXPECT_TRUE(browser.waitUntil("window.fetched === 'no'"));
    EXPECT_EQ(browser.ask("document.title"), "inbox");
    EXPECT_EQ(browser.ask("frames[0].location.href"), "about:blank");

    // The engine ends a load that was redirected to a file.
    bool wasEnded = false;
    browser.coordinator->signalProcessTerminated().connect([&] { wasEnded = true; });
    ASSERT_TRUE(browser.follow("/to-file"));
    EXPECT_TRUE(wasEnded);
    world.notifications.post(webViewGoHome);
    ASSERT_TRUE(browser.waitForLoads(3));
    EXPECT_EQ(browser.ask("document.title"), "inbox");
}

TEST(WebContent, SignsInOverTwoSitesAndKeepsNoCookieOfAThirdOnesFrames) {
    InboxWorld world;
    LoopbackServer tracker("", "127.0.0.2");
    const std::string login = "http://localhost:" + std::to_string(world.otherServer.port());
    const auto leadingTo = [](const std::string& address, const std::string& cookie) {
        return LoopbackServer::Answer{
            .status = 302,
            .headers = {{"Location", address}, {"Set-Cookie", cookie + "; Max-Age=3600"}}};
    };
    world.otherServer.answer("/login", leadingTo(world.server.origin() + "/back", "login=yes"));
    world.server.answer("/back", leadingTo(InboxWorld::inboxPath, "session=yes"));
    auto frame = InboxWorld::page("<script>document.cookie = 'written=yes; max-age=3600'</script>");
    frame.headers["Set-Cookie"] = "sent=yes; Max-Age=3600";
    world.otherServer.answer("/frame", frame);
    tracker.answer("/frame", frame);
    tracker.answer("/visit", InboxWorld::page("<p>"));

    InboxBrowser browser(world);
    ASSERT_TRUE(browser.follow(login + "/login"));
    EXPECT_EQ(browser.ask("document.cookie"), "session=yes");
    for (const auto& origin : {login, tracker.origin(), login, tracker.origin()}) {
        browser.ask(
            "Object.assign(document.body.appendChild(document.createElement("
            "'iframe')), {src: '" +
            origin + "/frame', onload: () => window.loaded = '" + origin + "'})");
        ASSERT_TRUE(browser.waitUntil("window.loaded === '" + origin + "'"));
    }
    EXPECT_EQ(world.otherServer.requests().back().headers["cookie"], "login=yes")
        << "Of a site that the person was at, and only what it kept then.";
    ASSERT_TRUE(browser.follow(tracker.origin() + "/visit"));
    for (auto request : tracker.requests())
        EXPECT_EQ(request.headers["cookie"], "") << request.target;
}

TEST(WebContent, DoesNotSurviveItsBrowser) {
    InboxWorld world(InboxWorld::Time::standsStill);
    InboxBrowser(world, "1001");
    // A script that is still to run holds the view.
    EXPECT_TRUE(runUntil([] { return webProcesses().empty(); }));
    {
        InboxBrowser browser(world);
        // Another site gets another process. The first process is kept for going back.
        const std::string port = std::to_string(world.otherServer.port());
        ASSERT_TRUE(browser.follow("http://localhost:" + port + "/elsewhere"));
        EXPECT_FALSE(webProcesses().empty());
    }
    // After their last run the scripts no longer hold the web page.
    world.clock.advance(std::chrono::seconds(10));
    EXPECT_TRUE(runUntil([] { return webProcesses().empty(); }));
}

TEST(WebContent, CookiesOutliveTheProgramInAFolderOfTheUsersOwn) {
    InboxWorld world;
    auto page = InboxWorld::page("<p>");
    page.headers["Set-Cookie"] = "login=kept; Max-Age=3600";
    world.server.answer(InboxWorld::inboxPath, page);
    InboxBrowser(world, "1001");
    world.session = &world.newSession();
    InboxBrowser(world, "1001");
    EXPECT_EQ(world.server.requests().back().headers["cookie"], "login=kept");
    EXPECT_EQ(fs::status(world.folder / "web").permissions(), fs::perms::owner_all);
}

} // namespace
} // namespace tessaro::test
