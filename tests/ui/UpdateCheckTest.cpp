#include "Views/UpdateCheck.h"

#include "support/Gtk/ScreenWorld.h"
#include "support/LoopbackServer.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>

#include <optional>

using namespace tessaro;
using namespace tessaro::test;

namespace {

constexpr const char* path = "/api/update/check";

class TheUpdateCheck : public testing::Test {
protected:
    void check(const std::string& body, int status = 200) {
        server_.answer(path, {.status = status, .body = body});
        check_->checkForUpdates();
    }
    std::string log() {
        world_.logger.flush(std::chrono::seconds(5));
        return world_.logger.readCurrentLog();
    }
    bool alertAppears() {
        return runUntil([&] { return !world_.modals.alerts.empty(); });
    }

    LoopbackServer server_;
    ScreenWorld world_;
    SupportClient support_{world_.settings, server_.origin(), world_.device, world_.logger, {}};
    std::optional<UpdateCheck> check_{
        std::in_place, support_, world_.logger, world_.modals, world_.desktop};
};

TEST_F(TheUpdateCheck, OffersANewerVersionAndOpensItsAddress) {
    const std::string answer =
        R"({"version":"1.3.0","url":"https://a.example/get","notes":"Fixes"})";
    check(answer);
    ASSERT_TRUE(alertAppears());
    const auto& alert = world_.modals.alerts[0];
    EXPECT_EQ(alert.title, "Bản Cập Nhật Mới");
    EXPECT_EQ(alert.message, "Phiên bản mới: 1.3.0\n\nNội dung:\nFixes");
    ASSERT_EQ(alert.buttons.size(), 2);
    EXPECT_EQ(alert.buttons[0].label, "Để sau");
    EXPECT_TRUE(alert.buttons[0].isCancel);
    EXPECT_EQ(alert.buttons[1].label, "Cập nhật ngay");
    world_.modals.answers[0](0);
    EXPECT_TRUE(world_.desktop.opened.empty());

    check(answer);
    ASSERT_TRUE(runUntil([&] { return world_.modals.alerts.size() == 2; }));
    world_.modals.answers[1](1);
    EXPECT_EQ(world_.desktop.opened, (std::vector<std::string>{"https://a.example/get"}));
}

TEST_F(TheUpdateCheck, ShowsNothingForTheSameVersionAndOnlyLogsAFailure) {
    check(R"({"version":"1.2.0","url":"https://a.example/","notes":""})");
    ASSERT_TRUE(runUntil([&] { return server_.requestCount(path) == 1; }));
    check(R"({"message":"Bảo trì"})", 503);
    ASSERT_TRUE(runUntil([&] {
        return log().find("[ERROR] Lỗi kiểm tra cập nhật: Bảo trì\n") != std::string::npos;
    }));
    EXPECT_TRUE(world_.modals.alerts.empty());
}

TEST_F(TheUpdateCheck, MayEndBeforeTheAnswerOrTheClick) {
    check(R"({"version":"2","url":"https://a.example/","notes":""})");
    ASSERT_TRUE(alertAppears());
    check_.reset();
    world_.modals.answers[0](1);
    EXPECT_TRUE(world_.desktop.opened.empty());

    check_.emplace(support_, world_.logger, world_.modals, world_.desktop);
    check_->checkForUpdates();
    check_.reset();
    await(support_.checkUpdate()); // By its end the first answer has come through as well.
    EXPECT_EQ(world_.modals.alerts.size(), 1);
}

} // namespace
