#include "Views/Shell/FooterBar.h"
#include "Views/Shell/UpdateCheck.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/TestScreen.h"
#include "support/LoopbackServer.h"

#include <gtest/gtest.h>

#include <optional>

using namespace tessaro;
using namespace tessaro::test;

namespace {

constexpr const char* path = "/api/support/upload-log";
constexpr const char* buttonName = "Hỗ trợ";

class SupportScreens : public testing::Test {
protected:
    void showBar() {
        bar_.emplace(screen_.context, support_);
        bar_->set_valign(Gtk::Align::END);
        screen_.show(*bar_);
    }

    LoopbackServer server_;
    TestScreen screen_;
    SupportClient support_{screen_.settings, server_.origin(), screen_.device, screen_.logger, {}};
    std::optional<FooterBar> bar_;
};

} // namespace

TEST_F(SupportScreens, OnlyOkLeadsToTheSupportStaffAndOnlyFromALogThatWasSent) {
    const std::tuple<LoopbackServer::Answer, std::optional<std::size_t>, std::size_t> rounds[] = {
        {{507, R"({"error":"Máy chủ hết chỗ"})", {}}, 0, 0},
        {{200, R"({"success":true})", {}}, std::nullopt, 0},
        {{200, R"({"success":true})", {}}, 0, 1}};
    showBar();
    for (const auto& [answer, pressed, opened] : rounds) {
        server_.answer(path, answer);
        const auto before = screen_.modals.alerts.size();
        the<Gtk::Button>(*bar_, buttonName).grab_focus();
        Keyboard::press(GDK_KEY_space);
        ASSERT_TRUE(runUntil([&] { return screen_.modals.alerts.size() > before; }));
        EXPECT_TRUE(the<Gtk::Button>(*bar_, buttonName).has_focus());
        screen_.modals.answers.back()(pressed);
        EXPECT_EQ(screen_.desktop.opened.size(), opened);
    }
    EXPECT_EQ(screen_.modals.alerts[0].message, "Lỗi gửi log: Máy chủ hết chỗ");
    EXPECT_EQ(screen_.desktop.opened[0], screen_.endpoints.linkTelegram);
    EXPECT_EQ(screen_.desktop.copied.back(), screen_.device.getDeviceUUID());
}

TEST_F(SupportScreens, FooterBarIsBusyWhileTheServerTakesItsTimeAndMayGoMeanwhile) {
    server_.answer(path, R"({"success":true})");
    server_.hold(path);
    showBar();
    press(*bar_, buttonName);
    ASSERT_TRUE(runUntil([&] { return server_.requestCount(path) == 1; }));
    EXPECT_FALSE(the<Gtk::Button>(*bar_, buttonName).is_sensitive());
    screen_.settle(); // Frames are still drawn.

    screen_.window.unset_child();
    bar_.reset();
    server_.release();
    ASSERT_TRUE(runUntil([&] { return server_.openConnections() == 0; }));
    await(support_.checkUpdate()); // When this check has ended, the first one has too.
    EXPECT_TRUE(screen_.modals.alerts.empty());
}

TEST_F(
    SupportScreens, UpdateCheckOffersANewerVersionOnceAtATimeAndMayEndBeforeTheAnswerOrTheClick) {
    const char* newer = R"({"version":"1.3.0","url":"https://a.example/","notes":"Fixes"})";
    std::optional<UpdateCheck> updates(
        std::in_place, support_, screen_.logger, screen_.modals, screen_.desktop);
    const auto check = [&](const std::string& answer) {
        server_.answer("/api/update/check", answer);
        updates->checkForUpdates();
        await(support_.checkUpdate()); // Where both go at once, either may end first.
    };
    check(R"({"version":"1.2.0","url":"https://a.example/","notes":""})");
    EXPECT_TRUE(screen_.modals.alerts.empty());
    check(newer);
    ASSERT_TRUE(runUntil([&] { return screen_.modals.alerts.size() == 1; }));
    EXPECT_EQ(screen_.modals.alerts[0].message, "Phiên bản mới: 1.3.0\n\nNội dung:\nFixes");
    check(newer);
    EXPECT_EQ(screen_.modals.alerts.size(), 1u);
    screen_.modals.answers[0](0);
    check(newer);
    ASSERT_TRUE(runUntil([&] { return screen_.modals.alerts.size() == 2; }));
    updates.reset();
    screen_.modals.answers[1](1);
    EXPECT_TRUE(screen_.desktop.opened.empty());

    updates.emplace(support_, screen_.logger, screen_.modals, screen_.desktop);
    updates->checkForUpdates();
    updates.reset();
    await(support_.checkUpdate());
    EXPECT_EQ(screen_.modals.alerts.size(), 2u);
}
