#include "Platform/DesktopNotifier.h"

#include "support/MainLoop.h"
#include "support/MockBusService.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace tessaro;
using test::MockBusService;
using test::runUntil;

namespace {

const std::string name = "org.freedesktop.Notifications";

class DesktopNotifierTest : public testing::Test {
protected:
    /// Answers like a notification service that supports markup.
    MockBusService mock(const std::string& busName) {
        return {bus_.address(), busName, [id = 7](const std::string& method) mutable {
                    if (method.ends_with("Notify"))
                        return "(uint32 " + std::to_string(id++) + ",)";
                    return std::string(
                        method.ends_with("GetCapabilities") ? "(['body-markup'],)" : "()");
                }};
    }
    static void waitForCall(const MockBusService& mock, const std::string& wanted) {
        EXPECT_TRUE(runUntil([&] { return std::ranges::count(mock.calls(), wanted) == 1; }))
            << wanted << " not in " << testing::PrintToString(mock.calls());
    }
    void show(const DesktopNotification& notification) {
        notifier_->show(notification, [this, notification](const std::string& token) {
            clicks_.push_back(notification.id + token);
        });
    }
    static void waitForShown(const MockBusService& mock, std::ptrdiff_t count) {
        EXPECT_TRUE(runUntil([&] {
            return std::ranges::count_if(mock.calls(), [](const std::string& call) {
                       return call.starts_with(name + ".Notify(");
                   }) == count;
        }));
    }
    static void emit(const MockBusService& mock, const char* signal, const char* arguments) {
        mock.emit("/org/freedesktop/Notifications", name + "." + signal, arguments);
    }
    bool waitForClicks(const std::vector<std::string>& wanted) {
        return runUntil([&] { return clicks_ == wanted; });
    }

    const test::PrivateSessionBus bus_;
    std::vector<std::string> clicks_;
    std::optional<DesktopNotifier> notifier_{false};
};

} // namespace

TEST_F(DesktopNotifierTest, ShowsPlainTextAndHearsOfItsOwnClicksAlone) {
    const auto service = mock(name);
    const std::string notify = name + ".Notify('Tessaro', 0, 'com.vandel.Tessaro', ";
    const std::string end = ", ['default', ''], {'desktop-entry': <'com.vandel.Tessaro'>, "
                            "'category': <'im.received'>}, -1)";
    EXPECT_TRUE(test::await(askForNotifications(false)));
    show({"a", "Mai <3", "1 < 2 & <b>x</b>"});
    waitForCall(service, notify + "'Mai <3', '1 &lt; 2 &amp; &lt;b&gt;x&lt;/b&gt;'" + end);
    show({"b", "Lan", ""});
    waitForCall(service, notify + "'Lan', ''" + end);

    emit(service, "ActionInvoked", "(uint32 99, 'default')");
    emit(service, "ActivationToken", "(uint32 8, ' token')");
    emit(service, "ActionInvoked", "(uint32 8, 'default')");
    emit(service, "ActionInvoked", "(uint32 7, 'default')");
    EXPECT_TRUE(waitForClicks({"b token", "a"}));

    emit(service, "NotificationClosed", "(uint32 7, uint32 2)");
    emit(service, "ActionInvoked", "(uint32 7, 'default')");
    notifier_->withdraw("b");
    waitForCall(service, name + ".CloseNotification(8,)");
    emit(service, "ActionInvoked", "(uint32 8, 'default')");
    show({"c", "Hoa", ""});
    waitForCall(service, notify + "'Hoa', ''" + end);
    emit(service, "ActionInvoked", "(uint32 9, 'default')");
    EXPECT_TRUE(waitForClicks({"b token", "a", "c"}));
}

TEST_F(DesktopNotifierTest, LeavesNothingBehindThatWasWithdrawnReplacedOrDismissedWhileBeingShown) {
    auto service = mock(name);
    service.hold("Notify");
    const std::string close = name + ".CloseNotification";
    show({"a", "Mai", ""});
    waitForShown(service, 1);
    notifier_->withdraw("a");
    service.answerHeld();
    waitForCall(service, close + "(7,)");

    show({"b", "Lan", "một"});
    waitForShown(service, 2);
    show({"b", "Lan", "hai"});
    waitForShown(service, 3);
    service.answerHeld();
    waitForCall(service, close + "(8,)");
    emit(service, "ActionInvoked", "(uint32 9, 'default')");
    EXPECT_TRUE(waitForClicks({"b"}));

    show({"b", "Lan", "ba"});
    waitForShown(service, 4);
    emit(service, "NotificationClosed", "(uint32 9, uint32 2)");
    service.answerHeld();
    // The answer has arrived when this call has, because a bus keeps the order.
    emit(service, "ActionInvoked", "(uint32 10, 'default')");
    EXPECT_TRUE(waitForClicks({"b", "b"}));
    notifier_->withdraw("b");
    waitForCall(service, close + "(10,)");
}

TEST_F(DesktopNotifierTest, GoesThroughThePortalFromWithinAConfinedPackage) {
    notifier_.emplace(true);
    const auto portal = mock("org.freedesktop.portal.Desktop");
    const std::string interface = "org.freedesktop.portal.Notification.";
    EXPECT_TRUE(test::await(askForNotifications(true)));
    show({"a", "Mai", "1 < 2"});
    waitForCall(
        portal, interface + "AddNotification('a', {'title': <'Mai'>, 'body': <'1 < 2'>, "
                            "'default-action': <'open'>})");
    portal.emit(
        "/org/freedesktop/portal/desktop", interface + "ActionInvoked", "('a', 'open', @av [])");
    EXPECT_TRUE(waitForClicks({"a"}));
    notifier_->withdraw("a");
    waitForCall(portal, interface + "RemoveNotification('a',)");
}

TEST_F(DesktopNotifierTest, OutlivesADesktopWithoutNotifications) {
    EXPECT_FALSE(test::await(askForNotifications(false)));
    show({"a", "Mai", ""});
    notifier_.reset();
    notifier_.emplace(false);
    show({"b", "Lan", ""});
    test::runPending();
    notifier_->withdraw("b");
    EXPECT_TRUE(clicks_.empty());
}
