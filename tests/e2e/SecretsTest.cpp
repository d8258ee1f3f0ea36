#include "WalkTest.h"

#include "support/ProcessTree.h"

#include <sys/stat.h>

#include <algorithm>
#include <fstream>
#include <set>

using namespace tessaro;
using namespace tessaro::demo;
namespace fs = std::filesystem;

namespace {

/// Every secret that is typed or received contains one of these.
constexpr const char* marks[] = {
    "demo-user-token", "demo-page-token", "marked-bad-token", "marked-proxy-password"};

bool holdsMark(std::string_view text) {
    return std::ranges::any_of(
        marks, [&](const char* mark) { return text.find(mark) != std::string_view::npos; });
}

class Secrets : public test::WalkTest {
protected:
    Secrets() { leaveEverythingWide(); }
    ~Secrets() override { umask(before_); }

    /// Leaves files as an older program or a careless copy would: everybody can read them.
    void leaveEverythingWide() {
        fs::create_directories(data_ / "avatars");
        fs::create_directories(data_ / "logs");
        std::ofstream(data_ / "accounts.json") << "[]";
        std::ofstream(data_ / "pages.json") << "[]";
        for (const auto& entry : fs::recursive_directory_iterator(home_.path()))
            fs::permissions(entry, fs::perms(entry.is_directory() ? 0777 : 0666));
    }

    void giveProxy() {
        walk_.press(button("CẤU HÌNH PROXY"));
        walk_.type(field("Host"), "127.0.0.1");
        walk_.type(field("Port"), "1"); // Nobody listens there.
        walk_.type(field("Username"), "user");
        walk_.type(field("Password"), "marked-proxy-password");
    }

    /// Opens the sheet, verifies the token there and waits until the answer is shown.
    void verify(const std::string& token, const std::string& answer) {
        walk_.press(button("Thêm Page"));
        walk_.type(field("ACCESS TOKEN"), token);
        walk_.press(button("Xác minh Token"));
        const auto sheet = dialog("Thêm Facebook Page");
        walk_.expect("an answer to " + token, [&] {
            return walk_.see(sheet)
                .find(
                    [&](const Node& node) { return node.name().find(answer) != std::string::npos; })
                .has_value();
        });
        checkTexts(mainWindow());
        checkTexts(sheet);
        checkProcesses();
    }
    void leave(const std::string& name) {
        walk_.press(button(name));
        walk_.seeGone(dialog("Thêm Facebook Page"));
    }

    /// Expects no mark in any text on screen, except in the field that it was typed into.
    void checkTexts(const Wanted& window) {
        walk_.see(window).find([](const Node& node) {
            EXPECT_FALSE(holdsMark(node.name())) << node.name();
            EXPECT_TRUE(node.name() == "ACCESS TOKEN" || !holdsMark(node.text())) << node.name();
            return false;
        });
    }

    void checkProcesses() {
        const auto tree = test::processTree();
        EXPECT_GE(tree.size(), 2u);
        for (const auto& process : tree)
            EXPECT_FALSE(holdsMark(process.commandLine + process.environment))
                << process.commandLine;
    }

    /// The names of those files in the program's folder that contain a mark.
    std::set<std::string> markedFiles() {
        std::set<std::string> marked;
        for (const auto& entry : fs::recursive_directory_iterator(home_.path()))
            if (entry.is_regular_file() && holdsMark(demo::readFile(entry.path())))
                marked.insert(entry.path().filename());
        return marked;
    }

    static bool isOwners(const fs::path& path) {
        const auto modes = fs::is_directory(path) ? fs::perms(0700) : fs::perms(0600);
        return fs::status(path).permissions() == modes;
    }

    mode_t before_ = umask(0);
};

} // namespace

TEST_F(Secrets, StayInTheTwoRecordFiles) {
    startProgram();
    beginAccount(walk_, "Đại lý");
    giveProxy();
    finishAccount(walk_);
    walk_.press(button("Đại lý"));
    verify("demo-user-token", "127.0.0.1");
    leave("Hủy");
    beginAccount(walk_, "Cửa hàng");
    finishAccount(walk_);
    walk_.press(button("Cửa hàng"));
    verify("marked-bad-token", "Invalid OAuth access token");
    leave("Hủy");
    verify("demo-user-token", "Đây là User Token");
    walk_.press(button("Tiệm Hoa Nắng Mai"));
    leave("Thêm Page");
    walk_.expect("the inbox", [&] { return !walk_.server().view().is_null(); });
    checkProcesses();
    verify("demo-page-token", "Page Token hợp lệ");
    leave("Thêm Page");
    // This Page has no picture, which makes a line in the log.
    walk_.expect("a line in the log", [&] { return logs().find("[ERROR]") != std::string::npos; });
    walk_.press(button("Hỗ trợ"));
    checkTexts(dialog("Hỗ Trợ Kỹ Thuật"));
    const auto uploads = walk_.server().uploads().dump();
    EXPECT_NE(uploads.find("[ERROR]"), std::string::npos) << uploads;
    EXPECT_FALSE(holdsMark(uploads));
    walk_.press(button("OK"));
    walk_.closeProgram();

    EXPECT_EQ(markedFiles(), (std::set<std::string>{"accounts.json", "pages.json"}));
    EXPECT_TRUE(isOwners(data_));
    EXPECT_TRUE(isOwners(settings_));
    for (auto entry = fs::recursive_directory_iterator(data_);
         entry != fs::recursive_directory_iterator(); ++entry) {
        EXPECT_TRUE(isOwners(entry->path())) << entry->path();
        if (entry->path().filename() == "web") // The engine's own files.
            entry.disable_recursion_pending();
    }
}
