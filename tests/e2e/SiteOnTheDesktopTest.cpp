#include "DemoServer.h"
#include "Program.h"

#include "support/Gtk/ForeignWindow.h"
#include "support/Gtk/Keyboard.h"
#include "support/MainLoop.h"
#include "support/MockBusService.h"
#include "support/StoreWorld.h"

#include <gtest/gtest.h>
#include <gtkmm/window.h>

using namespace tessaro;
using namespace tessaro::test;

namespace {

TEST(TheSiteOnTheDesktop, CountsInTheWindowsTitleAndNotifiesWhoeverIsElsewhere) {
    demo::DemoServer server;
    ASSERT_TRUE(server.listen(0));
    Program program;
    program.writeSettings(
        {{"skarn_server_url", "http://127.0.0.1:9"},
         {"graph_api_origin", server.origin()},
         {"inbox_origin", server.origin()},
         {"site_notifications", "granted " + server.origin()}});
    StoreWorld records;
    DataStore store(program.dataFolder(), records.keychain, records.notifications, records.clock);
    const Account account = makeAccount();
    store.saveAccounts({account});
    auto page = makePage(account, "100231450000101");
    page.pageToken = SecretText("demo-page-token-hoa");
    store.savePages({page});

    const MockBusService notifications(
        g_getenv("DBUS_SESSION_BUS_ADDRESS"), "org.freedesktop.Notifications",
        [](const std::string& method, GDBusMessage* call) {
            return MockBusService::answer(
                call, method.ends_with("Notify") ? g_variant_new("(u)", 7) : nullptr);
        });
    const auto wasAsked = [&](const std::string& method) {
        return runUntil([&] {
            return std::ranges::any_of(notifications.calls(), [&](const std::string& call) {
                return call.starts_with("org.freedesktop.Notifications." + method + "(");
            });
        });
    };
    const auto isTitled = [](const std::string& title) {
        return runUntil([&] {
            const auto windows = ForeignWindow::ofClass("com.vandel.Tessaro");
            return windows.size() == 1 && windows[0].title() == title;
        });
    };
    const auto isActive = [] {
        return runUntil([] {
            return std::ranges::any_of(
                ForeignWindow::ofClass("com.vandel.Tessaro"), &ForeignWindow::isActive);
        });
    };

    program.start();
    ASSERT_TRUE(isActive());
    Keyboard::press(GDK_KEY_Return); // The account has the focus.
    ASSERT_TRUE(runUntil([&] {
        return std::filesystem::exists(program.dataFolder() / "avatars" / "100231450000101.jpg");
    })) << "the Pages did not come";
    Keyboard::press(GDK_KEY_1, GDK_KEY_Control_L);
    ASSERT_TRUE(isTitled("(2) Tessaro"));
    Keyboard::press(GDK_KEY_k, GDK_KEY_Control_L);
    ASSERT_TRUE(runUntil([&] {
        const auto& view = server.inbox().view();
        return view.is_object() && view["focus"] == "search";
    }));
    for (const auto key : {GDK_KEY_l, GDK_KEY_o, GDK_KEY_n, GDK_KEY_g, GDK_KEY_Return})
        Keyboard::press(static_cast<guint>(key));
    ASSERT_TRUE(isTitled("Tessaro")) << "the unread conversation is open";
    Keyboard::press(GDK_KEY_v);
    Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(wasAsked("Notify"));

    Gtk::Window inFront;
    inFront.present();
    ASSERT_TRUE(runUntil([&] { return inFront.is_active(); }));
    notifications.emit(
        "/org/freedesktop/Notifications", "org.freedesktop.Notifications.ActionInvoked",
        "(uint32 7, 'default')");
    EXPECT_TRUE(isActive());
    EXPECT_TRUE(wasAsked("CloseNotification")) << "the site did not hear of the click";

    ForeignWindow::ofClass("com.vandel.Tessaro").at(0).close();
    EXPECT_EQ(program.waitForExit(), 0);
}

} // namespace
