#include "Program.h"

#include "support/Gtk/ForeignWindow.h"
#include "support/Gtk/Keyboard.h"
#include "support/LoopbackServer.h"
#include "support/MainLoop.h"
#include "support/MockBusService.h"
#include "support/StoreWorld.h"

#include <gtest/gtest.h>
#include <gtkmm/window.h>

using namespace tessaro;
using namespace tessaro::test;

namespace {

TEST(TheSiteOnTheDesktop, CountsInTheWindowsTitleAndNotifiesWhoeverIsElsewhere) {
    LoopbackServer server;
    server.answer(
        "/latest/inbox/all",
        {.body = "<!DOCTYPE html><title>(3) Inbox</title><script>new Notification('Mai', "
                 "{body: 'Hello'}).onclick = () => { document.title = '(2) Inbox' }</script>",
         .headers = {{"Content-Type", "text/html"}}});
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
    store.savePages({makePage(account, "1001")});

    const MockBusService notifications(
        connectToBus(g_getenv("DBUS_SESSION_BUS_ADDRESS")), "org.freedesktop.Notifications",
        [](const std::string& method, GDBusMessage* call) {
            return MockBusService::answer(
                call, method.ends_with("Notify") ? g_variant_new("(u)", 7) : nullptr);
        });
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
    ASSERT_TRUE(runUntil([&] { return server.requestCount("/v25.0/1001/picture") > 0; }))
        << "the Pages did not come";
    Keyboard::press(GDK_KEY_1, GDK_KEY_Control_L);
    ASSERT_TRUE(isTitled("(3) Tessaro"));
    ASSERT_TRUE(runUntil([&] {
        return std::ranges::count(notifications.calls(), "org.freedesktop.Notifications.Notify") ==
               1;
    }));

    Gtk::Window inFront;
    inFront.present();
    ASSERT_TRUE(runUntil([&] { return inFront.is_active(); }));
    notifications.emit(
        "/org/freedesktop/Notifications", "org.freedesktop.Notifications.ActionInvoked",
        "(uint32 7, 'default')");
    EXPECT_TRUE(isActive());
    EXPECT_TRUE(isTitled("(2) Tessaro")) << "the site did not hear of the click";

    ForeignWindow::ofClass("com.vandel.Tessaro").at(0).close();
    EXPECT_EQ(program.waitForExit(), 0);
}

} // namespace
