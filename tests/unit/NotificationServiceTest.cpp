#include "Services/NotificationService.h"

#include "support/MainLoop.h"
#include "support/MockBusService.h"
#include "support/StoreWorld.h"

#include <gmock/gmock.h>

using namespace tessaro;
using test::MockBusService;
using testing::EndsWith, testing::HasSubstr, testing::Not;

namespace {

constexpr const char* granted = "[INFO] NotificationService: Quyền thông báo đã được cấp.\n";
const std::string refused = "[ERROR] NotificationService: Lỗi yêu cầu quyền: ";

/// Asks once and returns what comes into the log.
std::string logAfterRequest(bool isConfined) {
    test::StoreWorld world;
    NotificationService(world.logger, isConfined).requestPermission();
    EXPECT_THAT(world.loggedLines(), Not(HasSubstr("]"))) << "did not return at once";
    EXPECT_TRUE(test::runUntil([&] { return world.loggedLines().ends_with("\n"); }));
    return world.loggedLines();
}

} // namespace

TEST(NotificationService, LogsWhatTheDesktopOrThePortalSaysOrThatThereIsNone) {
    const test::PrivateSessionBus bus;
    const std::string desktop = "org.freedesktop.Notifications";
    EXPECT_THAT(logAfterRequest(false), HasSubstr(refused + "The name " + desktop));
    const MockBusService service(bus.address(), desktop, [](const std::string& method) {
        return method.ends_with("GetCapabilities") ? "(['body'],)" : "('mock', 'us', '1', '1.2')";
    });
    const MockBusService portal(
        bus.address(), "org.freedesktop.portal.Desktop", [](auto&) { return "(<uint32 1>,)"; });
    EXPECT_THAT(logAfterRequest(false), EndsWith(granted));
    EXPECT_THAT(logAfterRequest(true), EndsWith(granted));
}
