#include "Services/NotificationService.h"

#include "support/MainLoop.h"
#include "support/MockBusService.h"
#include "support/StoreWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

using namespace tessaro;
using test::MockBusService;
using testing::EndsWith, testing::HasSubstr, testing::Not;

namespace {

constexpr const char* notifications = "org.freedesktop.Notifications";
constexpr const char* granted = "[INFO] NotificationService: Quyền thông báo đã được cấp.\n";
const std::string refused = "[ERROR] NotificationService: Lỗi yêu cầu quyền: ";

class NotificationServiceTest : public testing::Test {
protected:
    /// Asks once and returns what comes into the log.
    std::string logAfterRequest() {
        test::StoreWorld world;
        NotificationService(world.logger, temp_ / "confined").requestPermission();
        EXPECT_THAT(world.loggedLines(), Not(HasSubstr("]"))) << "did not return at once";
        EXPECT_TRUE(test::runUntil([&] { return world.loggedLines().ends_with("\n"); }));
        return world.loggedLines();
    }

    const test::PrivateSessionBus bus_;
    test::TempFolder temp_;
};

} // namespace

TEST_F(NotificationServiceTest, TakesAnAnswerOfTheNotificationServiceForAGrant) {
    const MockBusService service(
        bus_.address(), notifications, [](const std::string& method, GDBusMessage* call) {
            const bool list = method.ends_with("GetCapabilities");
            return MockBusService::answer(
                call, list ? "(['body'],)" : "('mock', 'us', '1', '1.2')");
        });
    EXPECT_THAT(logAfterRequest(), EndsWith(granted));
}

TEST_F(NotificationServiceTest, AsksThePortalFromWithinAConfinedPackage) {
    std::ofstream(temp_ / "confined") << "[Application]\n";
    const MockBusService portal(
        bus_.address(), "org.freedesktop.portal.Desktop",
        [](const std::string&, GDBusMessage* call) {
            return MockBusService::answer(call, "(<uint32 1>,)");
        });
    EXPECT_THAT(logAfterRequest(), EndsWith(granted));
}

TEST_F(NotificationServiceTest, LogsTheErrorOfTheServiceOrThatThereIsNone) {
    EXPECT_THAT(logAfterRequest(), HasSubstr(refused + "The name org.freedesktop.Notifications"));
    const MockBusService service(
        bus_.address(), notifications, [](const std::string&, GDBusMessage* call) {
            return MockBusService::refuse(call, "org.example.Broken", "Máy chủ thông báo hỏng");
        });
    EXPECT_THAT(logAfterRequest(), EndsWith(refused + "Máy chủ thông báo hỏng\n"));
}
