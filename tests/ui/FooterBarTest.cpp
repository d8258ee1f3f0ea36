#include "Views/FooterBar.h"

#include "Views/FooterLinkButton.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/WidgetPicture.h"
#include "support/Gtk/Widgets.h"
#include "support/LoopbackServer.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>
#include <gtkmm/settings.h>
#include <nlohmann/json.hpp>

#include <future>
#include <optional>

using namespace tessaro;
using namespace tessaro::test;

namespace {

constexpr const char* path = "/api/support/upload-log";
constexpr const char* buttonName = "Hỗ trợ";

class TheFooterBar : public testing::Test {
protected:
    void SetUp() override {
        screen_.endpoints.linkTelegram = "https://telegram.example/help";
        bar_.emplace(screen_.context, screen_.logger, support_);
        bar_->set_valign(Gtk::Align::END);
        screen_.show(*bar_);
    }

    Gtk::Button& supportButton() { return *find<Gtk::Button>(*bar_, buttonName); }
    bool alertAppears() {
        return runUntil([&] { return !screen_.modals.alerts.empty(); });
    }
    /// Shows the link as under the pointer, without depending on where that is.
    void hover(Gtk::Widget& widget, bool over) {
        if (over)
            widget.set_state_flags(Gtk::StateFlags::PRELIGHT, false);
        else
            widget.unset_state_flags(Gtk::StateFlags::PRELIGHT);
    }

    LoopbackServer server_;
    TestScreen screen_;
    SupportClient support_{screen_.settings, server_.origin(), screen_.device, screen_.logger, {}};
    std::optional<FooterBar> bar_;
};

TEST_F(TheFooterBar, SendsTodaysLogAndLeadsToTelegram) {
    server_.answer(path, R"({"success":true})");
    screen_.logger.log("việc đã xảy ra", "INFO");
    screen_.logger.flush(std::chrono::seconds(5));
    press(*bar_, buttonName);
    ASSERT_TRUE(alertAppears());

    const auto identifier = screen_.device.getDeviceUUID();
    const auto sent = nlohmann::json::parse(server_.requests().front().body);
    EXPECT_EQ(sent["uuid"], identifier);
    EXPECT_EQ(sent["filename"], screen_.logger.currentLogURL().filename().string());
    EXPECT_EQ(sent["content"], screen_.logger.readCurrentLog());
    const auto& alert = screen_.modals.alerts[0];
    EXPECT_EQ(alert.title, "Hỗ Trợ Kỹ Thuật");
    EXPECT_EQ(
        alert.message,
        "Gửi log hỗ trợ thành công!\n\nUUID: " + identifier +
            "\n\nUUID đã được copy vào clipboard. Gửi UUID này qua Telegram để nhận hỗ trợ.");
    ASSERT_EQ(alert.buttons.size(), 1);
    EXPECT_EQ(alert.buttons[0].label, "OK");
    EXPECT_EQ(screen_.desktop.copied, (std::vector<std::string>{identifier}));
    EXPECT_TRUE(screen_.desktop.opened.empty());

    screen_.modals.answers[0](0);
    EXPECT_EQ(screen_.desktop.opened, (std::vector<std::string>{"https://telegram.example/help"}));
}

TEST_F(TheFooterBar, SaysWhyALogWasRefusedAndGoesNowhere) {
    server_.answer(path, {.status = 507, .body = R"({"error":"Máy chủ hết chỗ"})"});
    press(*bar_, buttonName);
    ASSERT_TRUE(alertAppears());
    EXPECT_EQ(screen_.modals.alerts[0].message, "Lỗi gửi log: Máy chủ hết chỗ");
    screen_.modals.answers[0](0);
    EXPECT_TRUE(screen_.desktop.opened.empty());
    EXPECT_TRUE(screen_.desktop.copied.empty());
    EXPECT_TRUE(supportButton().is_sensitive());
}

TEST_F(TheFooterBar, IsBusyWhileTheServerTakesItsTimeAndMayGoMeanwhile) {
    std::promise<void> release;
    server_.handle(
        path, [released = release.get_future().share()](
                  ServerConnection& connection, const ReceivedRequest&) {
            released.wait();
            connection.write("HTTP/1.1 200 OK\r\nContent-Length: 16\r\n\r\n{\"success\":true}");
        });
    press(*bar_, buttonName);
    ASSERT_TRUE(runUntil([&] { return server_.requestCount(path) == 1; }));
    EXPECT_FALSE(supportButton().is_sensitive());
    const GCharPtr difference(gtk_test_accessible_check_state(
        GTK_ACCESSIBLE(supportButton().gobj()), GTK_ACCESSIBLE_STATE_BUSY, TRUE));
    EXPECT_FALSE(difference) << difference.get();
    screen_.settle(); // Frames are still drawn.

    screen_.window.unset_child();
    bar_.reset();
    release.set_value();
    ASSERT_TRUE(runUntil([&] { return server_.openConnections() == 0; }));
    await(support_.checkUpdate()); // By its end the first answer has come through as well.
    EXPECT_TRUE(screen_.modals.alerts.empty());
}

TEST_F(TheFooterBar, ShowsALinksLabelAndColourUnderThePointer) {
    auto* const telegram = find<FooterLinkButton>(*bar_, "Telegram");
    ASSERT_TRUE(telegram);
    EXPECT_EQ(telegram->get_tooltip_text(), "Telegram");
    EXPECT_EQ(bar_->get_height(), 28);
    const auto narrow = telegram->get_width();

    hover(*telegram, true);
    ASSERT_TRUE(runUntil([&] { return telegram->get_width() > narrow + 30; }));
    EXPECT_TRUE(runUntil([&] {
        const auto behind = WidgetPicture(*telegram).at(3, telegram->get_height() / 2.0);
        return nearlyEqual(behind, {0.14, 0.63, 0.87, 0.1});
    }));
    hover(*telegram, false);
    EXPECT_TRUE(runUntil([&] { return telegram->get_width() == narrow; }));

    press(*bar_, "Telegram");
    ASSERT_TRUE(runUntil([&] { return !screen_.desktop.opened.empty(); }));
    EXPECT_EQ(screen_.desktop.opened, (std::vector<std::string>{"https://telegram.example/help"}));
}

TEST_F(TheFooterBar, DoesNotMoveWhenTheDesktopAsksForStillness) {
    auto* const donate = find<FooterLinkButton>(*bar_, "Donate");
    auto animations = donate->get_settings()->property_gtk_enable_animations();
    animations = false;
    const auto narrow = donate->get_width();
    hover(*donate, true);
    screen_.settle();
    const auto wide = donate->get_width();
    EXPECT_GT(wide, narrow + 20);
    screen_.settle();
    EXPECT_EQ(donate->get_width(), wide) << "the label was there at once";
    animations = true;
}

} // namespace
