#include "WalkTest.h"

#include "support/MockBusService.h"
#include "support/PrivateSessionBus.h"

#include <algorithm>
#include <csignal>

using namespace tessaro;
using namespace tessaro::demo;

namespace {

class TheProgram : public test::WalkTest {
protected:
    void waitForFocus(bool hasFocus) {
        walk_.expect("the window to get or lose the keyboard", [&] {
            return walk_.see(mainWindow()).has(ATSPI_STATE_ACTIVE) == hasFocus;
        });
    }
    void putAway() {
        waitForFocus(true);
        walk_.see(mainWindow()).press("window.minimize");
        waitForFocus(false);
    }
};

} // namespace

TEST_F(TheProgram, ComesBackWhenItIsStartedAgain) {
    startProgram();
    putAway();
    Program second(TESSARO_PROGRAM, home_ / "second.txt");
    EXPECT_TRUE(second.endsWell(std::chrono::seconds(20)));
    waitForFocus(true);
    walk_.closeProgram();
}

TEST_F(TheProgram, LeavesDataAloneThatAProgramOfAnotherSessionUses) {
    const std::string sentence = "Tessaro đang chạy trong một phiên làm việc khác trên cùng dữ "
                                 "liệu. Hãy đóng cửa sổ đó rồi mở lại.";
    const auto everyFile = [&] {
        std::map<std::filesystem::path, std::filesystem::file_time_type> times;
        for (const auto& folder : {data_, settings_.parent_path()})
            for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
                times[entry.path()] = entry.last_write_time();
        return times;
    };
    {
        Program crashing(TESSARO_PROGRAM, home_ / "crashing.txt");
        walk_.expect("the lock", [&] { return std::filesystem::exists(data_ / ".lock"); });
        kill(crashing.processId(), SIGKILL);
        EXPECT_FALSE(crashing.endsWell(std::chrono::seconds(20)));
    }
    startProgram(); // A lock file that a crash left behind locks nothing.
    beginAccount(walk_, "Cửa hàng");
    finishAccount(walk_);
    const auto before = everyFile();
    {
        const std::string display = g_getenv("DISPLAY");
        const test::PrivateSessionBus otherSession;
        test::ScopedEnvironment environment;
        environment.set("DISPLAY", display);
        Program second(TESSARO_PROGRAM, home_ / "second.txt");
        const auto find = [&](AtspiRole role, const std::string& name) {
            const auto program = Node::ofProcess(second.processId());
            return program ? program->find([&](const Node& node) {
                return node.role() == role && node.name() == name;
            })
                           : std::nullopt;
        };
        walk_.expect("the sentence", [&] { return find(ATSPI_ROLE_LABEL, sentence).has_value(); });
        walk_.expect("its button", [&] {
            const auto button = find(ATSPI_ROLE_PUSH_BUTTON, "OK");
            return button && button->press();
        });
        EXPECT_FALSE(second.endsWell(std::chrono::seconds(20)));
        EXPECT_FALSE(second.isRunning()) << "it ended with a failure";
    }
    EXPECT_EQ(everyFile(), before);

    walk_.closeProgram();
}

TEST_F(TheProgram, StartsWithoutBusKeyringNotificationsAndNetwork) {
    writeSettings({{"skarn_server_url", "http://127.0.0.1:9"}}); // Nobody listens there.
    environment_.set("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    // Otherwise the toolkit would find this session's accessibility bus through the display.
    environment_.set("GTK_A11Y", "none");
    Program program(TESSARO_PROGRAM, home_ / "program-output.txt");
    walk_.expect("the window", [&] { return walk_.screen().findWindow("Tessaro").has_value(); });
    for (const char* line :
         {"[ERROR] NotificationService: Lỗi yêu cầu quyền: ",
          "[ERROR] SupportClient: Lỗi kết nối mạng khi gửi GET tới "
          "http://127.0.0.1:9/api/update/check: ",
          "[ERROR] Lỗi kiểm tra cập nhật: "})
        walk_.expect(line, [&] { return logs().find(line) != std::string::npos; });
    EXPECT_EQ(std::ranges::count(logs(), '\n'), 3);
    walk_.expect("the program to end", [&] {
        // The key is lost while the window does not have the focus.
        walk_.screen().typeKey("F4", "Alt_L");
        return !program.isRunning();
    });
    EXPECT_TRUE(program.endsWell(std::chrono::seconds(0)));
}

TEST_F(TheProgram, NotifiesOfTheSitesMessagesAndComesBackByAClick) {
    writeSettings({{"site_notifications", "granted " + origin_}});
    const test::MockBusService notifications(
        g_getenv("DBUS_SESSION_BUS_ADDRESS"), "org.freedesktop.Notifications",
        [](const std::string& method) {
            return method.ends_with("Notify") ? "(uint32 7,)" : "()";
        });
    const auto waitForCall = [&](const std::string& method) {
        walk_.expect(method, [&] {
            return std::ranges::any_of(notifications.calls(), [&](const std::string& call) {
                return call.starts_with("org.freedesktop.Notifications." + method + "(");
            });
        });
    };
    startProgram();
    beginAccount(walk_, "Cửa hàng");
    finishAccount(walk_);
    walk_.press(button("Cửa hàng"));
    verifyToken(walk_, "demo-single-token", "Page đã chọn — sẽ dùng Page Access Token");
    addPage(walk_, 1);
    walk_.see(button("Cà Phê Góc Phố, 1 chưa đọc"));
    walk_.seeGone(label("Đang tải hộp thư..."));

    const auto window = walk_.window();
    walk_.screen().click(window.x + window.width - 300, window.y + window.height - 75);
    walk_.expect(
        "the cursor in the answer", [&] { return walk_.server().view()["focus"] == "answer"; });
    for (const char* key : {"v", "Return"})
        walk_.screen().typeKey(key);
    waitForCall("Notify");
    putAway();
    notifications.emit(
        "/org/freedesktop/Notifications", "org.freedesktop.Notifications.ActionInvoked",
        "(uint32 7, 'default')");
    waitForFocus(true);
    waitForCall("CloseNotification"); // This call shows that the site got the click.
    walk_.closeProgram();
}
