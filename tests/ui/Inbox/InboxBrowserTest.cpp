#include "ui/Inbox/InboxWorld.h"

#include "Views/InboxCommands.h"
#include "support/Gtk/WidgetPicture.h"
#include "support/ManualClock.h"

#include <gtest/gtest.h>

namespace tessaro::test {
namespace {

using namespace std::chrono_literals;

TEST(InboxBrowser, AsksForThePagesInboxAsADesktopChrome) {
    InboxWorld world;
    InboxBrowser browser(world, "1001");
    ASSERT_TRUE(browser.waitForLoads(1));

    const auto requests = world.server.requests();
    ASSERT_FALSE(requests.empty());
    EXPECT_EQ(requests[0].target, "/latest/inbox/all?asset_id=1001");
    const std::string expected =
        "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) AppleWebKit/537.36 "
        "(KHTML, like Gecko) Chrome/125.0.0.0 Safari/537.36";
    ASSERT_EQ(expected.size(), 117U);
    EXPECT_EQ(requests[0].headers.at("user-agent"), expected);
    EXPECT_EQ(browser.ask("navigator.userAgent"), expected);
}

TEST(InboxBrowser, ShowsAnotherPageInTheSameViewAndKeepsTheZoom) {
    InboxWorld world;
    InboxBrowser browser(world, "1001");
    ASSERT_TRUE(browser.waitForLoads(1));
    const auto sameView = browser.coordinator->mainWebView().lock();
    world.notifications.post(webViewZoomIn);

    browser.show("1001");
    browser.show("1002");
    ASSERT_TRUE(browser.waitForLoads(2));
    browser.show("1002");
    runPending();

    EXPECT_EQ(world.server.requestCount(InboxWorld::inboxPath), 2U);
    EXPECT_EQ(browser.ask("location.search"), "?asset_id=1002");
    EXPECT_EQ(browser.coordinator->mainWebView().lock(), sameView);
    EXPECT_DOUBLE_EQ(browser.webView().pageZoom(), 1.1);
}

TEST(InboxBrowser, ZoomsInTenthsBetweenHalfAndDouble) {
    InboxWorld world;
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    const auto zoom = [&](const char* command, int times) {
        while (times-- > 0)
            world.notifications.post(command);
        EXPECT_EQ(browser.webView().pageZoom(), browser.coordinator->currentZoom());
        return browser.coordinator->currentZoom();
    };
    EXPECT_EQ(zoom(webViewZoomIn, 2), 1.2000000000000002); // The steps are not rounded.
    EXPECT_NEAR(zoom(webViewZoomIn, 3), 1.5, 1e-9);
    EXPECT_EQ(zoom(webViewZoomIn, 11), 2.0);
    EXPECT_NEAR(zoom(webViewZoomOut, 10), 1.0, 1e-9);
    EXPECT_EQ(zoom(webViewZoomOut, 6), 0.5);
}

TEST(InboxBrowser, ReloadsWhereThePersonIsAndGoesHomeToTheInbox) {
    InboxWorld world;
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    browser.follow("/elsewhere");
    ASSERT_TRUE(browser.waitForLoads(2));

    world.notifications.post(webViewReload);
    ASSERT_TRUE(browser.waitForLoads(3));
    world.notifications.post(refreshInbox);
    ASSERT_TRUE(browser.waitForLoads(4));
    EXPECT_EQ(world.server.requestCount("/elsewhere"), 3U);

    world.notifications.post(webViewGoHome);
    ASSERT_TRUE(browser.waitForLoads(5));
    EXPECT_EQ(browser.webView().address(), browser.coordinator->homeURL());
}

TEST(InboxBrowser, CarriesOutEveryCommandInEveryWindowUntilItsCoordinatorGoes) {
    InboxWorld world;
    InboxBrowser first(world, "1001");
    InboxBrowser second(world, "1002");
    ASSERT_TRUE(first.waitForLoads(1));
    ASSERT_TRUE(second.waitForLoads(1));

    world.notifications.post(webViewZoomOut);
    world.notifications.post(webViewReload);
    ASSERT_TRUE(first.waitForLoads(2));
    ASSERT_TRUE(second.waitForLoads(2));
    first.coordinator.reset();
    world.notifications.post(webViewZoomOut);

    EXPECT_DOUBLE_EQ(first.webView().pageZoom(), 0.9);
    EXPECT_DOUBLE_EQ(second.webView().pageZoom(), 0.8);

    second.window.unset_child();
    second.container.reset();
    world.notifications.post(webViewZoomOut); // Nobody is there to zoom.
    world.notifications.post(webViewGoHome);
}

TEST(InboxBrowser, OpensNewWindowsInTheSameViewButNothingThatThePageMayNotReach) {
    InboxWorld world;
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    for (const char* address : {"file:///etc/hostname", "javascript:document.title='owned'"}) {
        browser.ask(std::string("window.open(\"") + address + "\")");
        browser.ask(
            std::string("Object.assign(document.body.appendChild(document.createElement('a')), "
                        "{target: '_blank', href: \"") +
            address + "\"}).click()");
    }
    EXPECT_EQ(browser.ask("document.title"), "inbox");
    EXPECT_EQ(browser.startedLoads, 1);

    browser.ask("Object.assign(document.body.appendChild(document.createElement('a')), "
                "{target: '_blank', href: '/elsewhere'}).click()");
    ASSERT_TRUE(browser.waitForLoads(2));
    EXPECT_EQ(browser.ask("document.title"), "elsewhere");

    browser.ask("window.open('" + world.otherServer.origin() + "/elsewhere')");
    ASSERT_TRUE(browser.waitForLoads(3));
    EXPECT_EQ(browser.ask("location.origin"), world.otherServer.origin());
}

TEST(InboxBrowser, AsksThePagesQuestionsInAlertsOfTheProgram) {
    InboxWorld world;
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    const auto confirmWith = [&](std::size_t button) {
        const std::size_t before = world.modals.alerts.size();
        browser.webView().evaluateScript("window.answer = confirm('Xóa hội thoại?')");
        EXPECT_TRUE(runUntil([&] { return world.modals.alerts.size() > before; }));
        world.modals.answers.back()(button);
        return browser.ask("window.answer");
    };
    EXPECT_EQ(confirmWith(1), "false");
    EXPECT_EQ(confirmWith(0), "true");
    const ModalAlert confirm = world.modals.alerts[0];
    EXPECT_EQ(confirm.title, "");
    EXPECT_EQ(confirm.message, "Xóa hội thoại?");
    ASSERT_EQ(confirm.buttons.size(), 2U);
    EXPECT_EQ(confirm.buttons[0].label, "OK");
    EXPECT_EQ(confirm.buttons[1].label, "Hủy");
    EXPECT_TRUE(confirm.buttons[1].isCancel);

    browser.webView().evaluateScript("alert('Đã gửi'); window.answer = 'seen'");
    ASSERT_TRUE(runUntil([&] { return world.modals.alerts.size() == 3; }));
    ASSERT_EQ(world.modals.alerts[2].buttons.size(), 1U);
    EXPECT_EQ(world.modals.alerts[2].buttons[0].label, "OK");
    world.modals.answers[2](0);
    EXPECT_EQ(browser.ask("window.answer"), "seen");
}

/// Answers before show() returns, as a modal that is refused would.
class HastyModals final : public Modals {
public:
    void show(ModalAlert, std::function<void(std::size_t)> answered) override { answered(0); }
};

TEST(InboxBrowser, OutlivesAnAnswerThatComesTooEarlyOrTooLate) {
    InboxWorld world;
    HastyModals hasty;
    const ScreenContext& c = world.browserContext;
    const ScreenContext context{c.theme, c.notifications, c.settings, c.clock,     c.desktop, hasty,
                                c.store, c.device,        c.images,   c.endpoints, {}};
    {
        InboxBrowser browser(context, *world.session, "1001");
        ASSERT_TRUE(browser.waitForLoads(1));
        EXPECT_EQ(browser.ask("confirm('Gửi?')"), "true");
    }
    {
        InboxBrowser browser(world);
        ASSERT_TRUE(browser.waitForLoads(1));
        browser.webView().evaluateScript("confirm('Gửi?')");
        ASSERT_TRUE(runUntil([&] { return !world.modals.answers.empty(); }));
    }
    world.modals.answers[0](0);
    runPending();
}

TEST(InboxBrowser, WritesTheLoadingFlagInTheTurnAfterTheEvent) {
    ManualClock clock;
    InboxWorld world(clock);
    InboxBrowser browser(world);
    // The first thing that waits is the loading flag; the second the limit of the load.
    ASSERT_TRUE(runUntil([&] { return clock.pending() >= 2; }));
    EXPECT_FALSE(browser.isLoading->get());
    clock.advance(0ms);
    EXPECT_TRUE(browser.isLoading->get());
    ASSERT_TRUE(runUntil([&] {
        clock.advance(0ms);
        return !browser.isLoading->get();
    }));
}

TEST(InboxBrowser, StopsALoadThatMakesNoProgressForAMinute) {
    ManualClock clock;
    InboxWorld world(clock);
    world.server.handle(
        InboxWorld::inboxPath,
        [](ServerConnection& connection, const ReceivedRequest&) { connection.waitForClose(); });
    InboxBrowser browser(world);
    ASSERT_TRUE(runUntil([&] {
        clock.advance(0ms);
        return browser.isLoading->get() && world.server.requestCount(InboxWorld::inboxPath) == 1;
    }));
    clock.advance(59s);
    runPending();
    EXPECT_TRUE(browser.isLoading->get());
    ASSERT_TRUE(runUntil([&] {
        clock.advance(1s);
        return !browser.isLoading->get();
    }));
    EXPECT_EQ(browser.startedLoads, 1);
}

TEST(InboxBrowser, StaysAliveWithAPageIdThatMakesNoAddress) {
    InboxWorld world;
    InboxBrowser browser(world, "");
    ASSERT_TRUE(browser.waitForLoads(1));
    for (const char* pageId : {" \"<>%zz#", "\xff\xfe", "1\n2", "Đ"})
        browser.show(pageId);
    browser.show("1002");
    EXPECT_TRUE(browser.waitUntil("location.search === '?asset_id=1002'"));
}

TEST(InboxBrowser, UnderlinesWhatIsNeitherVietnameseNorEnglish) {
    InboxWorld world;
    world.server.answer(
        InboxWorld::inboxPath,
        InboxWorld::page("<body style='margin: 0 0 0 100px; font: 40px/100px sans-serif'>"
                         "<div id=answer contenteditable></div>"));
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    browser.webView().widget().grab_focus();
    const auto isLineUnderlined = [&](double top) {
        const WidgetPicture picture(*browser.container);
        for (double y = top + 10; y < top + 90; ++y)
            for (double x = 40; x < 700; ++x)
                if (const Rgba at = picture.at(x, y); at.red > at.green + 0.4)
                    return true;
        return false;
    };
    browser.ask("answer.focus(), "
                "document.execCommand('insertText', false, 'xin chào hello nghiêng '), "
                "document.execCommand('insertLineBreak'), "
                "document.execCommand('insertText', false, 'nghiênng helllo ')");
    EXPECT_TRUE(runUntil([&] { return isLineUnderlined(100); }));
    EXPECT_FALSE(isLineUnderlined(0));
}

} // namespace
} // namespace tessaro::test
