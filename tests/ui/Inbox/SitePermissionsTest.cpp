#include "ui/Inbox/InboxWorld.h"

#include "Views/Inbox/RecordingDot.h"

#include <gmock/gmock.h>
#include <webkit/webkit.h>

namespace tessaro::test {
namespace {

using testing::ElementsAre;

/// Where time stands still, what the person did in the page counts until the test says otherwise.
class TheSitesRecording : public testing::Test {
protected:
    TheSitesRecording() {
        world.server.answer(InboxWorld::inboxPath, page);
        for (LoopbackServer* each : {&world.server, &world.otherServer})
            each->answer("/recorder", page);
        browser.emplace(world);
        useMadeUpDevices();
    }
    void useMadeUpDevices() {
        auto* const view = WEBKIT_WEB_VIEW(browser->webView().widget().gobj());
        webkit_settings_set_enable_mock_capture_devices(webkit_web_view_get_settings(view), TRUE);
    }
    /// How the page's request ends. A question that is shown is answered.
    std::string outcome(std::optional<std::size_t> button) {
        const auto before = world.modals.answers.size();
        EXPECT_TRUE(runUntil([&] {
            if (world.modals.answers.size() > before)
                world.modals.answers.back()(button);
            return browser->ask("window.outcome") != "pending";
        }));
        return browser->ask("window.outcome");
    }
    std::string askUnclicked(const std::string& devices) {
        browser->ask("(record({" + devices + "}), 1)");
        return outcome(1);
    }
    std::string
    askByClick(const std::string& devices, std::optional<std::size_t> button = std::nullopt) {
        browser->ask("(window.wanted = {" + devices + "}, window.outcome = 'pending')");
        clickOn(browser->webView(), "button");
        return outcome(button);
    }
    bool isRecording(bool microphone, bool camera) {
        return runUntil([&] {
            return world.inbox.recording->microphone == microphone &&
                   world.inbox.recording->camera == camera;
        });
    }
    void letInputAge() { world.clock.advance(std::chrono::seconds(5)); }

    const LoopbackServer::Answer page = InboxWorld::page(R"html(
        <p style="padding-left: 120px">Text
        <button style="margin: 120px; padding: 40px" onclick="record(wanted)">record</button>
        <script>
            const streams = [];
            const record = wanted => {
                window.outcome = 'pending';
                navigator.mediaDevices.getUserMedia(wanted).then(
                    stream => { streams.push(stream); outcome = 'granted'; },
                    error => outcome = error.name);
            };
            if (location.search === '?at-once')
                record({audio: true});
        </script>)html");
    InboxWorld world{InboxWorld::Time::standsStill};
    std::optional<InboxBrowser> browser;
};

constexpr const char* refused = "NotAllowedError";

TEST_F(TheSitesRecording, IsAskedForOnceForEachDeviceAfterAClickAndSeenWhileItGoesOn) {
    RecordingDot dot(world.inbox);
    EXPECT_EQ(askUnclicked("audio: true"), refused);
    EXPECT_TRUE(world.modals.alerts.empty());

    EXPECT_EQ(askByClick("audio: true", std::nullopt), refused) << "Escape refuses this once.";
    EXPECT_FALSE(dot.get_visible());
    letInputAge();
    EXPECT_EQ(askUnclicked("audio: true"), refused);
    EXPECT_EQ(askByClick("audio: true", 1), "granted");
    EXPECT_TRUE(isRecording(true, false));
    EXPECT_EQ(dot.get_tooltip_text(), "Trang đang ghi âm");
    EXPECT_EQ(browser->ask("streams[0].getAudioTracks()[0].getSettings().sampleRate"), "48000");
    EXPECT_EQ(askByClick("audio: true, video: true", 1), "granted") << "Asks for the camera only.";
    EXPECT_TRUE(isRecording(true, true));
    EXPECT_TRUE(dot.get_visible());
    EXPECT_EQ(dot.get_tooltip_text(), "Trang đang ghi âm và ghi hình");
    browser->ask("(streams.forEach(each => each.getTracks().forEach(track => track.stop())), 1)");
    EXPECT_TRUE(isRecording(false, false));
    EXPECT_FALSE(dot.get_visible());

    std::vector<std::string> titles;
    for (const auto& alert : world.modals.alerts)
        titles.push_back(alert.title);
    EXPECT_THAT(
        titles,
        ElementsAre("Cho phép dùng micrô?", "Cho phép dùng micrô?", "Cho phép dùng camera?"));

    EXPECT_EQ(askByClick("audio: true"), "granted");
    EXPECT_TRUE(isRecording(true, false));
    browser->webView().close();
    EXPECT_TRUE(isRecording(false, false)) << "The page's process has ended.";
    const std::string origin = originOf(world.endpoints.inboxOrigin);
    EXPECT_EQ(world.settings.text("site_microphone"), "granted " + origin);
    world.settings.setText("site_camera", "refused " + origin);
    browser.reset();
    browser.emplace(world);
    useMadeUpDevices();
    EXPECT_EQ(askByClick("audio: true"), "granted");
    EXPECT_EQ(askByClick("video: true"), refused);
    EXPECT_EQ(askByClick("audio: true, video: true"), refused);
    EXPECT_EQ(world.modals.alerts.size(), 3U);
}

TEST_F(TheSitesRecording, IsNothingForOtherSitesNorForAPageThatWasNotClickedItself) {
    const std::string origin = originOf(world.endpoints.inboxOrigin);
    world.settings.setText("site_microphone", "granted " + origin);
    clickOn(browser->webView(), "p");
    ASSERT_TRUE(browser->follow("/recorder?at-once"));
    EXPECT_EQ(outcome(1), refused) << "The click was in the page before.";
    EXPECT_EQ(askByClick("audio: true"), "granted");
    const std::string port = std::to_string(world.otherServer.port());
    ASSERT_TRUE(browser->follow("http://localhost:" + port + "/recorder"));
    EXPECT_EQ(askByClick("audio: true", 1), refused);
    EXPECT_TRUE(world.modals.alerts.empty());
}

TEST_F(TheSitesRecording, IsAllThatAPageCanAskFor) {
    for (int i = 0; i < 2; ++i) {
        browser->ask(
            "(window.answers = {},"
            " navigator.geolocation.getCurrentPosition("
            "     () => answers.place = 'granted', error => answers.place = error.code),"
            " document.onpointerlockchange = () => answers.pointer = 'granted',"
            " document.onpointerlockerror = () => answers.pointer = 'refused',"
            " document.querySelector('button').requestPointerLock(),"
            " navigator.mediaDevices.getDisplayMedia({video: true}).then("
            "     () => answers.screen = 'granted', error => answers.screen = error.name))");
        EXPECT_TRUE(browser->waitUntil("Object.keys(answers).length === 3"));
        EXPECT_EQ(
            browser->ask("[answers.place, answers.pointer, answers.screen]"),
            "1,refused,NotAllowedError");
    }
    const std::string log = world.loggedLines();
    for (const char* kind : {"Geolocation", "PointerLock", "UserMedia"}) {
        const auto first = log.find("Đã từ chối yêu cầu của trang: " + std::string(kind));
        ASSERT_NE(first, std::string::npos) << kind;
        EXPECT_EQ(log.find(kind, log.find(kind) + 1), std::string::npos) << "Only once: " << kind;
    }
    EXPECT_TRUE(world.modals.alerts.empty());
}

} // namespace
} // namespace tessaro::test
