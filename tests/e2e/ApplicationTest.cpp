#include "Program.h"

#include "support/Gtk/ForeignWindow.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/TestScreen.h"
#include "support/LoopbackServer.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>

#include <fstream>

using namespace tessaro;
using namespace tessaro::test;

namespace {

constexpr const char* applicationId = "com.vandel.Tessaro";
constexpr const char* nobodyListens = "http://127.0.0.1:9";

std::vector<ForeignWindow> programWindows() {
    return ForeignWindow::ofClass(applicationId);
}

bool aWindowIsActive() {
    return runUntil([] { return std::ranges::any_of(programWindows(), &ForeignWindow::isActive); });
}

long count(const std::vector<std::string>& lines, const std::string& part) {
    return std::ranges::count_if(
        lines, [&](const std::string& line) { return line.find(part) != std::string::npos; });
}

TEST(TheApplication, ShowsOneWindowHoweverOftenItIsStarted) {
    Program first;
    first.writeSettings({{"skarn_server_url", nobodyListens}});
    first.start();
    ASSERT_TRUE(aWindowIsActive());
    EXPECT_EQ(programWindows()[0].title(), "Tessaro");

    Gtk::Window inFront;
    inFront.present();
    ASSERT_TRUE(runUntil([&] { return inFront.is_active(); }));
    Program second;
    second.start();
    EXPECT_EQ(second.waitForExit(), 0);
    EXPECT_TRUE(aWindowIsActive());
    EXPECT_EQ(programWindows().size(), 1);
    EXPECT_TRUE(second.logLines().empty()) << "it did nothing of its own";

    programWindows()[0].close();
    EXPECT_EQ(first.waitForExit(), 0);
}

TEST(TheApplication, StartsWithoutBusKeyringNotificationsAndNetwork) {
    Program program;
    program.writeSettings({{"skarn_server_url", nobodyListens}});
    program.setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    // The display would still lead the toolkit to this session's accessibility bus.
    program.setEnvironment("GTK_A11Y", "none");
    program.start();
    ASSERT_TRUE(aWindowIsActive());
    EXPECT_TRUE(runUntil([&] { return count(program.logLines(), "") >= 3; }));
    programWindows()[0].close();
    EXPECT_EQ(program.waitForExit(), 0);

    const auto lines = program.logLines();
    EXPECT_EQ(lines.size(), 3);
    EXPECT_EQ(count(lines, "[ERROR] NotificationService: Lỗi yêu cầu quyền: "), 1);
    EXPECT_EQ(
        count(
            lines, "[ERROR] SupportClient: Lỗi kết nối mạng khi gửi GET tới "
                   "http://127.0.0.1:9/api/update/check: "),
        1);
    EXPECT_EQ(count(lines, "[ERROR] Lỗi kiểm tra cập nhật: "), 1);
}

TEST(TheApplication, OpensTheUpdateWithTheDesktopsHandler) {
    LoopbackServer server;
    server.answer(
        "/api/update/check",
        R"({"version":"1.3.0","url":"https://tessaro.example/get?v=1.3.0","notes":"Fixes"})");
    Program program;
    program.writeSettings({{"skarn_server_url", server.origin()}});
    const auto opened = program.home() / "opened";
    std::filesystem::create_directories(program.home() / "data" / "applications");
    std::ofstream(program.home() / "data" / "applications" / "recorder.desktop")
        << "[Desktop Entry]\nType=Application\nName=Recorder\n"
        << "Exec=sh -c 'echo \"$0\" >>" << opened.string() << "' %u\n"
        << "MimeType=x-scheme-handler/https;\n";
    std::ofstream(program.home() / "config" / "mimeapps.list")
        << "[Default Applications]\nx-scheme-handler/https=recorder.desktop\n";

    program.start();
    ASSERT_TRUE(runUntil([&] { return programWindows().size() == 2; })) << "no alert";
    ASSERT_TRUE(runUntil([] { return programWindows()[1].isActive(); }));
    Keyboard::press(GDK_KEY_Tab);
    Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(runUntil([&] { return std::filesystem::exists(opened); }));
    ASSERT_TRUE(runUntil([&] { return programWindows().size() == 1; }));
    std::string address;
    ASSERT_TRUE(runUntil([&] { return bool(std::getline(std::ifstream(opened), address)); }));
    EXPECT_EQ(address, "https://tessaro.example/get?v=1.3.0");
}

} // namespace
