#include "Services/NotificationService.h"

#include "support/MainLoop.h"
#include "support/ManualClock.h"
#include "support/MockBusService.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

using namespace tessaro;
using namespace std::chrono_literals;
using test::MockBusService;

namespace {

constexpr const char* notifications = "org.freedesktop.Notifications";
constexpr const char* granted = "[INFO] NotificationService: Quyền thông báo đã được cấp.";

class NotificationServiceTest : public testing::Test {
protected:
    /// Asks once and returns the line that comes into the log, without its time.
    std::string lineAfterRequest() {
        NotificationService service(logger_, temp_ / "confined");
        service.requestPermission();
        EXPECT_FALSE(std::filesystem::exists(logger_.currentLogURL())) << "did not return at once";
        EXPECT_TRUE(test::runUntil([this] {
            logger_.flush(10s);
            return std::filesystem::exists(logger_.currentLogURL());
        }));
        const auto text = logger_.readCurrentLog();
        std::filesystem::remove(logger_.currentLogURL());
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
        return text.substr(text.find("] ") + 2, text.find('\n') - text.find("] ") - 2);
    }

    test::TempFolder temp_;
    SettingsStore settings_{temp_ / "settings.ini"};
    DeviceIdentity device_{settings_};
    test::ManualClock clock_;
    AppLogger logger_{temp_ / "logs", device_, clock_};
};

} // namespace

TEST_F(NotificationServiceTest, TakesAnAnswerOfTheNotificationServiceForAGrant) {
    const test::PrivateSessionBus bus;
    const MockBusService service(
        bus, notifications, [](const std::string& method, GDBusMessage* call) {
            return MockBusService::answer(
                call, g_variant_new_parsed(
                          method.ends_with("GetCapabilities") ? "(['body'],)"
                                                              : "('mock', 'us', '1', '1.2')"));
        });
    EXPECT_EQ(lineAfterRequest(), granted);
    EXPECT_EQ(lineAfterRequest(), granted);
    EXPECT_EQ(service.calls().size(), 4U);
}

TEST_F(NotificationServiceTest, AsksThePortalFromWithinAConfinedPackage) {
    std::ofstream(temp_ / "confined") << "[Application]\n";
    const test::PrivateSessionBus bus;
    const MockBusService portal(
        bus, "org.freedesktop.portal.Desktop", [](const std::string&, GDBusMessage* call) {
            return MockBusService::answer(call, g_variant_new_parsed("(<uint32 1>,)"));
        });
    EXPECT_EQ(lineAfterRequest(), granted);
    EXPECT_EQ(portal.calls(), std::vector<std::string>{"org.freedesktop.DBus.Properties.Get"});
}

TEST_F(NotificationServiceTest, LogsTheTextOfTheServicesError) {
    const test::PrivateSessionBus bus;
    const MockBusService service(bus, notifications, [](const std::string& method, auto* call) {
        return method.ends_with("GetCapabilities")
                   ? MockBusService::refuse(call, "org.example.Broken", "Máy chủ thông báo hỏng")
                   : MockBusService::answer(call);
    });
    EXPECT_EQ(
        lineAfterRequest(),
        "[ERROR] NotificationService: Lỗi yêu cầu quyền: Máy chủ thông báo hỏng");
}

TEST_F(NotificationServiceTest, LogsAnErrorWithoutAServiceAndWithoutABus) {
    const std::string head = "[ERROR] NotificationService: Lỗi yêu cầu quyền: ";
    {
        const test::PrivateSessionBus bus;
        const auto line = lineAfterRequest();
        EXPECT_TRUE(line.starts_with(head + "The name org.freedesktop.Notifications")) << line;
    }
    test::ScopedEnvironment environment;
    environment.set("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    const auto line = lineAfterRequest();
    EXPECT_TRUE(line.starts_with(head)) << line;
    EXPECT_GT(line.size(), head.size());
}
