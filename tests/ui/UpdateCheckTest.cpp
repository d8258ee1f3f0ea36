#include "Views/UpdateCheck.h"

#include "support/Gtk/ScreenWorld.h"
#include "support/LoopbackServer.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>

#include <optional>

using namespace tessaro;
using namespace tessaro::test;

namespace {

class TheUpdateCheck : public testing::Test {
protected:
    void check(const std::string& answer) {
        server_.answer("/api/update/check", answer);
        check_->checkForUpdates();
        await(support_.checkUpdate()); // By its end the first answer has come through as well.
    }

    LoopbackServer server_;
    ScreenWorld world_;
    SupportClient support_{world_.settings, server_.origin(), world_.device, world_.logger, {}};
    std::optional<UpdateCheck> check_{
        std::in_place, support_, world_.logger, world_.modals, world_.desktop};
};

TEST_F(TheUpdateCheck, OffersANewerVersionOnceAtATimeAndMayEndBeforeTheAnswerOrTheClick) {
    const char* newer = R"({"version":"1.3.0","url":"https://a.example/","notes":"Fixes"})";
    const auto waitForAlerts = [this](std::size_t count) {
        return runUntil([=, this] { return world_.modals.alerts.size() == count; });
    };
    check(R"({"version":"1.2.0","url":"https://a.example/","notes":""})");
    EXPECT_TRUE(world_.modals.alerts.empty());
    check(newer);
    ASSERT_TRUE(waitForAlerts(1));
    EXPECT_EQ(world_.modals.alerts[0].message, "Phiên bản mới: 1.3.0\n\nNội dung:\nFixes");
    check(newer);
    EXPECT_EQ(world_.modals.alerts.size(), 1u);
    world_.modals.answers[0](0);
    check(newer);
    ASSERT_TRUE(waitForAlerts(2));
    check_.reset();
    world_.modals.answers[1](1);
    EXPECT_TRUE(world_.desktop.opened.empty());

    check_.emplace(support_, world_.logger, world_.modals, world_.desktop);
    check_->checkForUpdates();
    check_.reset();
    await(support_.checkUpdate());
    EXPECT_EQ(world_.modals.alerts.size(), 2u);
}

} // namespace
