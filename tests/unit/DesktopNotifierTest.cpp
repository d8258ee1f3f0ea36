#include "Platform/DesktopNotifier.h"

#include "support/MainLoop.h"
#include "support/MockBusService.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <mutex>

using namespace tessaro;
using test::MockBusService;
using test::runUntil;

namespace {

constexpr const char* path = "/org/freedesktop/Notifications";
const std::string service = "org.freedesktop.Notifications";
const std::string portal = "org.freedesktop.portal.Notification";

class DesktopNotifierTest : public testing::Test {
protected:
    /// Answers as a notification service that reads markup, and keeps what it is to show.
    MockBusService::Handler handler() {
        return [this](const std::string& method, GDBusMessage* call) {
            GVariant* body = g_dbus_message_get_body(call);
            const std::lock_guard lock(mutex_);
            calls_.push_back(
                method.substr(method.rfind('.') + 1) +
                (body ? takeString(g_variant_print(body, FALSE)) : ""));
            if (method.ends_with("GetCapabilities"))
                return MockBusService::answer(call, g_variant_new_parsed("(['body-markup'],)"));
            if (method.ends_with("Notify"))
                return MockBusService::answer(call, g_variant_new("(u)", nextId_++));
            return MockBusService::answer(call);
        };
    }
    bool waitForCall(const std::string& wanted) {
        const bool came = runUntil([&] {
            const std::lock_guard lock(mutex_);
            return std::ranges::count(calls_, wanted) == 1;
        });
        const std::lock_guard lock(mutex_);
        EXPECT_TRUE(came) << wanted << " not in " << testing::PrintToString(calls_);
        return came;
    }
    DesktopNotifier::Clicked click(const std::string& name) {
        return [this, name](const std::string& token) { clicks_.push_back(name + token); };
    }
    bool waitForClicks(const std::vector<std::string>& wanted) {
        return runUntil([&] { return clicks_ == wanted; });
    }

    std::mutex mutex_;
    std::vector<std::string> calls_;
    std::uint32_t nextId_ = 7;
    std::vector<std::string> clicks_;
    test::TempFolder temp_;
};

} // namespace

TEST_F(DesktopNotifierTest, ShowsPlainTextAndHearsOfItsOwnClicksAlone) {
    const test::PrivateSessionBus bus;
    const MockBusService mock(bus, service, handler());
    DesktopNotifier notifier(temp_ / "confined");
    const std::string notify = "Notify('Tessaro', 0, 'com.vandel.Tessaro', ";
    const std::string end = ", ['default', ''], {'desktop-entry': <'com.vandel.Tessaro'>, "
                            "'category': <'im.received'>}, -1)";
    notifier.show({"a", "Mai <3", "1 < 2 & <b>x</b>"}, click("a"));
    waitForCall(notify + "'Mai <3', '1 &lt; 2 &amp; &lt;b&gt;x&lt;/b&gt;'" + end);
    notifier.show({"b", "Lan", ""}, click("b"));
    waitForCall(notify + "'Lan', ''" + end);

    mock.emit(path, service + ".ActionInvoked", "(uint32 99, 'default')");
    mock.emit(path, service + ".ActivationToken", "(uint32 8, ' token')");
    mock.emit(path, service + ".ActionInvoked", "(uint32 8, 'default')");
    mock.emit(path, service + ".ActionInvoked", "(uint32 7, 'default')");
    EXPECT_TRUE(waitForClicks({"b token", "a"}));

    mock.emit(path, service + ".NotificationClosed", "(uint32 7, uint32 2)");
    mock.emit(path, service + ".ActionInvoked", "(uint32 7, 'default')");
    notifier.withdraw("b");
    waitForCall("CloseNotification(8,)");
    mock.emit(path, service + ".ActionInvoked", "(uint32 8, 'default')");
    notifier.show({"c", "Hoa", ""}, click("c"));
    waitForCall(notify + "'Hoa', ''" + end);
    mock.emit(path, service + ".ActionInvoked", "(uint32 9, 'default')");
    EXPECT_TRUE(waitForClicks({"b token", "a", "c"}));
}

TEST_F(DesktopNotifierTest, GoesThroughThePortalFromWithinAConfinedPackage) {
    std::ofstream(temp_ / "confined") << "[Application]\n";
    const test::PrivateSessionBus bus;
    const MockBusService mock(bus, "org.freedesktop.portal.Desktop", handler());
    DesktopNotifier notifier(temp_ / "confined");
    notifier.show({"a", "Mai", "1 < 2"}, click("a"));
    waitForCall("AddNotification('a', {'title': <'Mai'>, 'body': <'1 < 2'>, "
                "'default-action': <'open'>})");
    mock.emit(
        "/org/freedesktop/portal/desktop", portal + ".ActionInvoked", "('a', 'open', @av [])");
    EXPECT_TRUE(waitForClicks({"a"}));
    notifier.withdraw("a");
    waitForCall("RemoveNotification('a',)");
}

TEST_F(DesktopNotifierTest, OutlivesADesktopWithoutNotifications) {
    const test::PrivateSessionBus bus;
    DesktopNotifier notifier(temp_ / "confined");
    notifier.show({"a", "Mai", ""}, click("a"));
    {
        DesktopNotifier dropped(temp_ / "confined");
        dropped.show({"b", "Lan", ""}, click("b"));
    }
    test::runPending();
    notifier.withdraw("a");
    EXPECT_TRUE(clicks_.empty());
}
