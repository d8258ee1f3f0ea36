#include "WalkTest.h"

#include "Platform/FileStore.h"
#include "support/ProcessTree.h"

#include <sys/stat.h>

#include <algorithm>
#include <fstream>
#include <set>

using namespace tessaro;
using namespace tessaro::demo;
namespace fs = std::filesystem;

namespace {

/// Everything secret that is typed or received, and the least that is common to them.
constexpr const char* marks[] = {
    "demo-user-token", "demo-page-token", "marked-bad-token", "marked-proxy-password"};

bool holdsMark(std::string_view text) {
    return std::ranges::any_of(
        marks, [&](const char* mark) { return text.find(mark) != std::string_view::npos; });
}

mode_t modeOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777;
}

class Secrets : public test::WalkTest {
protected:
    Secrets() { leaveEverythingWide(); }
    ~Secrets() override { umask(before_); }

    /// As an older program, or a careless copy, would have left it.
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
        walk_.type(field("Host (IP hoặc domain)"), "127.0.0.1");
        walk_.type(field("Port"), "1"); // Nobody listens there.
        walk_.type(field("Username (tùy chọn)"), "user");
        walk_.type(field("Password"), "marked-proxy-password");
    }

    /// Opens the sheet, verifies the token there and waits until the answer was shown.
    void verify(const std::string& token, const std::function<bool(const Node&)>& answered) {
        walk_.press(button("Thêm Page"));
        walk_.type(field("ACCESS TOKEN"), token);
        walk_.press(button("Xác minh Token"));
        walk_.expect("an answer to " + token, [&] {
            return walk_.see(dialog("Thêm Facebook Page")).find(answered).has_value();
        });
        checkWhatIsShown();
        checkProcesses();
    }
    void cancel() {
        walk_.press(button("Hủy"));
        walk_.seeGone(dialog("Thêm Facebook Page"));
    }

    std::string logs() {
        std::string all;
        for (const auto& file : fs::directory_iterator(data_ / "logs"))
            all += readFile(file.path()).value_or("");
        return all;
    }

    /// No text on screen holds a mark but the field that it was typed into.
    void checkWhatIsShown() {
        walk_.see(mainWindow()).find([](const Node& node) {
            EXPECT_FALSE(holdsMark(node.name())) << node.name();
            return false;
        });
        if (!walk_.isThere(dialog("Thêm Facebook Page")))
            return;
        walk_.see(dialog("Thêm Facebook Page")).find([](const Node& node) {
            EXPECT_FALSE(holdsMark(node.name())) << node.name();
            EXPECT_TRUE(node.name() == "ACCESS TOKEN" || !holdsMark(node.text())) << node.name();
            return false;
        });
    }

    void checkProcesses() {
        const auto tree = test::processTree();
        EXPECT_GE(tree.size(), 2u);
        for (const auto& process : tree) {
            EXPECT_FALSE(holdsMark(process.commandLine)) << process.commandLine;
            EXPECT_FALSE(holdsMark(process.environment)) << process.commandLine;
        }
        largestTree_ = std::max(largestTree_, tree.size());
    }

    mode_t before_ = umask(0);
    std::size_t largestTree_ = 0;
};

/// A label with that text.
std::function<bool(const Node&)> saying(std::string text) {
    return [text](const Node& node) { return node.name().find(text) != std::string::npos; };
}

} // namespace

TEST_F(Secrets, StayInTheTwoRecordFiles) {
    startProgram();
    beginAccount("Đại lý");
    giveProxy();
    finishAccount();
    walk_.press(button("Đại lý"));
    verify("demo-user-token", saying("127.0.0.1"));
    cancel();
    beginAccount("Cửa hàng");
    finishAccount();
    walk_.press(button("Cửa hàng"));
    verify("marked-bad-token", saying("Invalid OAuth access token"));
    cancel();
    verify("demo-user-token", saying("Đây là User Token"));
    walk_.press(button("Tiệm Hoa Nắng Mai"));
    walk_.press(button("Thêm Page"));
    walk_.seeGone(dialog("Thêm Facebook Page"));
    walk_.expect("the inbox", [&] { return !walk_.server().view().is_null(); });
    checkProcesses();
    verify("demo-page-token", saying("Page Token hợp lệ"));
    walk_.press(button("Thêm Page"));
    walk_.seeGone(dialog("Thêm Facebook Page"));
    // Its Page has no picture, which is worth a line.
    walk_.expect("a line in the log", [&] { return logs().find("[ERROR]") != std::string::npos; });
    walk_.press(button("Hỗ trợ"));
    walk_.see(dialog("Hỗ Trợ Kỹ Thuật"));
    walk_.see(dialog("Hỗ Trợ Kỹ Thuật")).find([](const Node& node) {
        EXPECT_FALSE(holdsMark(node.name() + node.text()));
        return false;
    });
    const auto uploads = walk_.server().uploads().dump();
    EXPECT_NE(uploads.find("[ERROR]"), std::string::npos) << uploads;
    EXPECT_FALSE(holdsMark(uploads));
    walk_.press(button("OK"));
    walk_.closeProgram();

    int files = 0;
    std::set<std::string> marked;
    for (const auto& entry : fs::recursive_directory_iterator(home_.path())) {
        if (!entry.is_regular_file())
            continue;
        ++files;
        if (holdsMark(readFile(entry.path()).value_or("")))
            marked.insert(entry.path().filename());
    }
    EXPECT_EQ(marked, (std::set<std::string>{"accounts.json", "pages.json"}));

    EXPECT_EQ(modeOf(data_), 0700u);
    EXPECT_EQ(modeOf(settings_), 0600u);
    for (auto entry = fs::recursive_directory_iterator(data_);
         entry != fs::recursive_directory_iterator(); ++entry) {
        EXPECT_EQ(modeOf(entry->path()), entry->is_directory() ? 0700u : 0600u) << entry->path();
        if (entry->path().filename() == "web") // What is below is the engine's own.
            entry.disable_recursion_pending();
    }
    std::cout << largestTree_ << " processes and " << files << " files were searched" << std::endl;
}
