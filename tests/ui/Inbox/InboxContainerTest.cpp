#include "ui/Inbox/InboxWorld.h"
#include "ui/Inbox/WebProcesses.h"

#include "Views/Inbox/InboxContainerView.h"
#include "Views/Widgets/InboxCommands.h"
#include "support/Gtk/TestScreen.h"
#include "support/ScopedEnvironment.h"

#include <webkit/webkit.h>

#include <algorithm>
#include <csignal>
#include <future>
#include <optional>

namespace tessaro::test {
namespace {

constexpr const char* veil = "Đang tải hộp thư...";

/// An inbox in the real engine.
class InboxContainer : public testing::Test {
protected:
    void show() {
        container.emplace(world.browserContext, makePage(account, "1001"), account, browsers);
        window.set_default_size(800, 600);
        window.set_child(*container);
        window.present();
    }
    std::size_t inboxRequests() const { return world.server.requestCount(InboxWorld::inboxPath); }
    /// What the engine knows of the page's place.
    static std::string sessionState(WebView& webView) {
        const std::unique_ptr<
            WebKitWebViewSessionState, Releaser<webkit_web_view_session_state_unref>>
            state(webkit_web_view_get_session_state(WEBKIT_WEB_VIEW(webView.widget().gobj())));
        const GBytesPtr bytes(webkit_web_view_session_state_serialize(state.get()));
        gsize size = 0;
        const auto* data = static_cast<const char*>(g_bytes_get_data(bytes.get(), &size));
        return {data, size};
    }
    bool isShown(const std::string& text) { return showsText(*container, text); }
    bool waitForLoaded() {
        return runUntil([&] { return isShown(veil); }) && runUntil([&] { return !isShown(veil); });
    }

    InboxWorld world;
    WebViewReserve browsers{
        realEngine(), world.folder / "web", world.folder / "web-cache", world.browserContext.clock,
        [this] { return SitePermissions::notifyingOrigin(world.browserContext); }};
    const Account account = makeAccount();
    Gtk::Window window;
    std::optional<InboxContainerView> container;
};

TEST_F(InboxContainer, TakesTheBrowserWhoseProcessRunsAlready) {
    const auto others = webProcesses();
    const auto processes = [&] {
        auto ours = webProcesses();
        std::erase_if(ours, [&](int id) { return std::ranges::find(others, id) != others.end(); });
        return ours;
    };
    browsers.prepare();
    EXPECT_TRUE(runUntil([&] { return processes().size() == 1; }));
    const auto ready = processes();
    show();
    ASSERT_TRUE(waitForLoaded());
    EXPECT_EQ(processes(), ready);
}

TEST_F(InboxContainer, OffersToLoadThePageAgainAfterItsProcessCrashed) {
    SiteConsent(world.settings, SiteConsent::notifications, originOf(world.endpoints.inboxOrigin))
        .keep(true);
    world.server.answer(InboxWorld::inboxPath, InboxWorld::page("<p style='height: 5000px'>inbox"));
    show();
    ASSERT_TRUE(waitForLoaded());
    WebView& webView = *widgetsOf<ClippedWebViewContainer>(*container).at(0)->webView();
    world.notifications.post(webViewZoomIn);
    const auto atTheTop = sessionState(webView);
    ask(webView, "(scrollTo(0, 900), 1)");
    ASSERT_TRUE(runUntil([&] { return sessionState(webView) != atTheTop; }));
    ask(webView, "(document.title = '(3) hộp thư', new Notification('Mai'))");
    ASSERT_TRUE(runUntil([&] {
        return world.inbox.unread->number == 3 && world.desktop.notifications.size() == 1;
    }));
    ASSERT_FALSE(webProcesses().empty());
    for (const pid_t process : webProcesses())
        kill(process, SIGKILL);
    ASSERT_TRUE(runUntil([&] { return isShown("Tải lại trang"); }));
    EXPECT_TRUE(widgetsOf<ClippedWebViewContainer>(*container).empty());
    EXPECT_EQ(world.inbox.unread->number, 0) << "Nothing of the web page is left.";
    EXPECT_EQ(world.desktop.withdrawn.size(), 1U);
    EXPECT_EQ(webView.title(), "");

    press(*container, "Tải lại trang");
    EXPECT_TRUE(runUntil([&] { return !widgetsOf<ClippedWebViewContainer>(*container).empty(); }));
    EXPECT_FALSE(isShown("Tải lại trang"));
    EXPECT_TRUE(waitUntil(webView, "scrollY === 900")) << "At the place where the person was.";
    EXPECT_EQ(webView.pageZoom(), 1.1);
}

TEST_F(InboxContainer, LoadsThePageThatWasChosenWhenTheProcessCrashedBeforeItCame) {
    show();
    ASSERT_TRUE(waitForLoaded());
    world.server.hold(InboxWorld::inboxPath);
    container->setPage(makePage(account, "1002"), account);
    ASSERT_TRUE(runUntil([&] { return inboxRequests() == 2; }));
    WebView& webView = *widgetsOf<ClippedWebViewContainer>(*container).at(0)->webView();
    webView.close();
    ASSERT_TRUE(runUntil([&] { return isShown("Tải lại trang"); }));
    world.server.release();
    press(*container, "Tải lại trang");
    ASSERT_TRUE(runUntil([&] { return world.endpoints.pageIdIn(webView.address()) == "1002"; }));
    EXPECT_TRUE(waitUntil(webView, "location.search.includes('1002')"));
}

TEST_F(InboxContainer, SaysWhatToDoWhereTheSandboxIsForbidden) {
    {
        ScopedEnvironment environment; // On this path no program of the sandbox is found.
        environment.set("PATH", world.folder.path());
        show();
        ASSERT_TRUE(runUntil([&] { return isShown("vùng cách ly"); }));
    }
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

/// An inbox whose engine is loaded when the test says so.
class InboxBeforeItsEngine : public testing::Test {
protected:
    InboxBeforeItsEngine() { screen.show(*container); }
    ~InboxBeforeItsEngine() override {
        screen.window.unset_child();
        if (!isLoaded)
            letLoad(nullptr);
    }
    void letLoad(Engine* engine) {
        isLoaded = true;
        loaded.set_value(engine);
    }
    bool waitForEnd() {
        return runUntil([&] {
            screen.clock.advance(Clock::Delay::zero());
            return !showsText(screen.window, veil);
        });
    }

    std::promise<Engine*> loaded;
    bool isLoaded = false;
    EngineLoader loader{[loading = loaded.get_future().share()] { return loading.get(); }};
    TestScreen screen{&loader};
    const Account account = makeAccount();
    WebViewReserve browsers{loader, "", "", screen.clock, {}};
    std::optional<InboxContainerView> container{
        std::in_place, screen.context, makePage(account, "1"), account, browsers};
};

TEST_F(InboxBeforeItsEngine, WaitsForIt) {
    EXPECT_TRUE(showsText(*container, veil));
    screen.inbox.find.emit();
    container->setPage(makePage(account, "2"), account);
    EXPECT_TRUE(showsText(*container, veil));
    letLoad(&screen.fakeEngine);
    ASSERT_TRUE(waitForEnd());
    ASSERT_EQ(screen.fakeEngine.views.size(), 1u);
    const auto loads = screen.fakeEngine.views[0].lock()->loads;
    ASSERT_EQ(loads.size(), 1u);
    EXPECT_TRUE(loads[0].ends_with("asset_id=2")) << loads[0];
    EXPECT_EQ(widgetsOf<ClippedWebViewContainer>(*container).size(), 1u);
}

TEST_F(InboxBeforeItsEngine, IsDroppedMeanwhile) {
    screen.window.unset_child();
    container.reset();
    browsers.prepare();
    browsers.drop();
    letLoad(&screen.fakeEngine);
    std::optional<Engine*> later;
    const auto connection = loader.whenLoaded([&](Engine* its) { later = its; });
    ASSERT_TRUE(runUntil([&] { return later.has_value(); }));
    EXPECT_EQ(later, &screen.fakeEngine);
    EXPECT_TRUE(screen.fakeEngine.views.empty());
}

TEST_F(InboxBeforeItsEngine, SaysThatItIsMissingOrDoesNotFit) {
    EXPECT_FALSE(loadEngine(screen.folder / "webkit.so"));
    letLoad(loadEngine("libm.so.6")); // This library is no engine.
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(showsText(*container, "bị thiếu hoặc không khớp với phiên bản này"));
}

} // namespace
} // namespace tessaro::test
